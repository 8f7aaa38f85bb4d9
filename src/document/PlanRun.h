// A plan run without a window.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "persistence/IniFile.h"
#include "plan/Plan.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunSimulation.h"
#include "simulation/RunTrace.h"
#include "util/Message.h"

namespace tarvelin {

struct PlanRun {
    /// The name of the plan's file, without folders.
    std::string name;
    Plan plan;
    LastRun run;
    ResultTexts texts;
    /// The whole plan is there.
    bool loaded = false;
    /// The inputs were valid, so that there is a result.
    bool hasRun = false;
    std::vector<Message> messages;

    /// Runs the plan again and records what charts and comparisons need. Only if `hasRun`.
    [[nodiscard]] RunTrace Trace() const;

    explicit PlanRun(const std::filesystem::path& file);
    /// The same from the profile of a file; nothing if that couldn't be read.
    PlanRun(std::string fileName, const std::optional<IniFile>& profile);
    /// The same for a plan that needn't be in a file.
    PlanRun(std::string fileName, Plan given);

  private:
    void Run();
};

}  // namespace tarvelin
