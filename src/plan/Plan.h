// All that belongs to a plan: what the user edits and a save file keeps.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "model/RunConditions.h"
#include "plan/BuildList.h"
#include "plan/SleepTable.h"
#include "plan/StartParameters.h"

namespace tarvelin {

struct Plan {
    StartParameters parameters;
    BuildList LV_Bauliste;
    SleepTable LV_Schlafzeiten;
    /// Whether the names under the item pictures are shown.
    bool ShowDesc = true;
};

/// What edits change of a plan, as a value that can be kept and compared.
struct PlanSnapshot {
    StartParameters parameters{};
    /// The `Tag`s of the rows.
    std::vector<std::string> tags{};
    SleepTable Schlafzeiten{};

    friend bool operator==(const PlanSnapshot&, const PlanSnapshot&) = default;
};

[[nodiscard]] PlanSnapshot SnapshotOf(const Plan& plan);

/// The conditions of the plan's run, or what keeps it from running: an empty list, then a
/// temperature, then a date that can't be used.
[[nodiscard]] std::variant<RunConditions, Message> ParseRunConditions(const Plan& plan);

}  // namespace tarvelin
