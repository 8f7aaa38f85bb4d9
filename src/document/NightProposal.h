// Nights of a rule in a plan, before they are entered.
#pragma once

#include <optional>
#include <set>
#include <vector>

#include "plan/Plan.h"
#include "plan/SleepRule.h"
#include "simulation/RunTrace.h"

namespace tarvelin {

struct NightProposal {
    FilledSleepTable filled;
    /// The run with these nights; nothing if the plan can't be run.
    std::optional<RunTrace> trace;
};

/// Nights from the plan's start to a day after its end. As nights make a plan longer, that is the
/// end that it has with them.
[[nodiscard]] NightProposal ProposeNights(const Plan& plan, const SleepRule& rule,
                                          AtOverlap atOverlap);

/// The windows that are new or longer in `filled`.
[[nodiscard]] std::vector<cSchlafzeit> NewNights(const FilledSleepTable& filled);

/// The rows of `trace` that start in a window that is new in `filled`.
[[nodiscard]] std::set<std::size_t> RowsInNewNights(const RunTrace& trace,
                                                    const FilledSleepTable& filled);

}  // namespace tarvelin
