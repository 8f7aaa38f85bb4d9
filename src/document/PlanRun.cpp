// Loads and runs a plan.
#include "document/PlanRun.h"

#include <utility>

#include "persistence/PlanFile.h"
#include "util/Utf8.h"

namespace tarvelin {

RunTrace PlanRun::Trace() const {
    return TraceRun(plan.LV_Bauliste.Orders().All(), run.conditions);
}

PlanRun::PlanRun(const std::filesystem::path& file)
    : PlanRun(PathToUtf8(file.filename()), IniFile::Load(file)) {}

PlanRun::PlanRun(std::string fileName, const std::optional<IniFile>& profile)
    : name(std::move(fileName)) {
    MessageCollector collector(messages);
    if (!profile) {
        collector.Show(LoadErrorMessage());
        return;
    }
    loaded = ReadPlan(*profile, plan, run.conditions, collector);
    if (loaded) {
        Run();
    }
}

PlanRun::PlanRun(std::string fileName, Plan given)
    : name(std::move(fileName)), plan(std::move(given)), loaded(true) {
    Run();
}

void PlanRun::Run() {
    MessageCollector collector(messages);
    const auto conditions = ParseRunConditions(plan);
    if (const auto* const refusal = std::get_if<Message>(&conditions)) {
        collector.Show(*refusal);
        return;
    }
    run.ResetSimulation(std::get<RunConditions>(conditions));
    RunSimulation(plan.LV_Bauliste.Orders().All(), run, collector);
    texts.AfterRun(run.state);
    hasRun = true;
}

}  // namespace tarvelin
