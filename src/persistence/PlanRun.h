// A plan file loaded and run, as a fresh program would.
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
    /// The name of the file without its folders.
    std::string name;
    Plan plan;
    LastRun run;
    ResultTexts texts;
    /// The whole file was read, and the run was called.
    bool loaded = false;
    /// The run got past its checks of the inputs.
    bool hasRun = false;
    std::vector<Message> messages;

    /// The same run once more with all that charts and comparisons show; `hasRun` holds.
    [[nodiscard]] RunTrace Trace() const;

    /// Loads and runs the plan of a file.
    explicit PlanRun(const std::filesystem::path& file);
    /// The same with what a file of that name held: nothing, if it couldn't be read.
    PlanRun(std::string fileName, const std::optional<IniFile>& profile);
};

}  // namespace tarvelin
