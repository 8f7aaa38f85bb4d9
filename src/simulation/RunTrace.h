// A run with all that a picture of it shows.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "model/RunConditions.h"
#include "simulation/History.h"
#include "simulation/RunObserver.h"
#include "util/Message.h"

namespace tarvelin {

struct RunTrace {
    RunConditions conditions;
    /// The starts in the order of the rows. A row without a rule of its own has none.
    std::vector<StartEvent> starts;
    /// The history, at each moment with the last state that the run recorded for it.
    std::vector<HistoryPoint> curve;
    GameState end;
    std::vector<Message> messages;

    /// When the last order is done.
    [[nodiscard]] SimTime Duration() const { return end.secsgone; }
    /// Nothing for a row that never started.
    [[nodiscard]] const StartEvent* StartOf(std::size_t row) const;
};

/// Plays orders to the end.
[[nodiscard]] RunTrace TraceRun(std::span<const Order> orders, const RunConditions& conditions);

/// The points of a history in the order of time. Where the clock stepped back, by a click buffer,
/// what was recorded before for the moments behind it is gone.
[[nodiscard]] std::vector<HistoryPoint> CurveFrom(std::span<const HistoryPoint> history);

/// The last point not behind a moment, or the first. The curve isn't empty.
[[nodiscard]] const HistoryPoint& PointAt(std::span<const HistoryPoint> curve, SimTime moment);

}  // namespace tarvelin
