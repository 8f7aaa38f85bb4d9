// All that belongs to a plan: what the user edits and a save file keeps.
#pragma once

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

/// The part of a plan that edits change, to keep and to compare.
struct PlanSnapshot {
    StartParameters parameters{};
    std::vector<Order> orders{};
    SleepTable Schlafzeiten{};

    friend bool operator==(const PlanSnapshot&, const PlanSnapshot&) = default;
};

[[nodiscard]] PlanSnapshot SnapshotOf(const Plan& plan);

/// The conditions for a run of the plan, or the first error: an empty list, an invalid temperature,
/// an invalid date.
[[nodiscard]] std::variant<RunConditions, Message> ParseRunConditions(const Plan& plan);

}  // namespace tarvelin
