// What goes on at a moment of a run.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "simulation/RunTrace.h"

namespace tarvelin {

struct MomentState {
    SimTime moment;
    /// The last event's figures; rates and energy are those of the moment too.
    HistoryPoint point;
    PerResource<FixedPoint> stock{};
    /// The orders that are being built, in the sequence of the queues.
    std::vector<StartEvent> building;
    /// The next order that is given, if there is one.
    std::optional<StartEvent> waiting;
};

/// The run must have a curve, as each has that `TraceRun` has made.
[[nodiscard]] MomentState StateAt(const RunTrace& trace, SimTime moment);

/// What the waiting order waits for: "564 Deuterium" is what it still lacks at the moment, all else
/// as in `WaitCauseText`. Empty if none waits.
[[nodiscard]] std::string StillMissingText(const RunTrace& trace, const MomentState& state);

/// "Faktor 0,95"; empty where the mines have all their energy.
[[nodiscard]] std::string FactorText(const HistoryPoint& point);

/// "518 von 544": supply and need.
[[nodiscard]] std::string EnergyText(const HistoryPoint& point);

/// "+509/h", "−12/h"; truncated towards zero.
[[nodiscard]] std::string RateText(FixedPoint perHour);

}  // namespace tarvelin
