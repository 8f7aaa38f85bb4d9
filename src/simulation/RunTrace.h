// A recorded run: what charts and comparisons need of it.
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
    /// The starts in the sequence of the rows. A row of unknown code has none.
    std::vector<StartEvent> starts;
    /// The history as `CurveFrom` makes it.
    std::vector<HistoryPoint> curve;
    GameState end;
    std::vector<Message> messages;

    /// When the last order is done.
    [[nodiscard]] SimTime Duration() const { return end.secsgone; }
    /// Nothing for a row that never started.
    [[nodiscard]] const StartEvent* StartOf(std::size_t row) const;
};

/// Runs orders to the end and records the run.
[[nodiscard]] RunTrace TraceRun(std::span<const Order> orders, const RunConditions& conditions);

/// The points of a history in ascending time. Where the clock stepped back by a click buffer, the
/// later point replaces those recorded for its moment and after.
[[nodiscard]] std::vector<HistoryPoint> CurveFrom(std::span<const HistoryPoint> history);

/// The last point at or before a moment, else the first. The curve must not be empty.
[[nodiscard]] const HistoryPoint& PointAt(std::span<const HistoryPoint> curve, SimTime moment);

}  // namespace tarvelin
