// Texts that say how a run stands at a moment.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// "Mo 20.11. 12:30:05".
[[nodiscard]] std::string ShortDateTimeText(DateTime time);

/// Stocks, rates and energy at a moment, and the levels on a second line.
[[nodiscard]] std::string StatusText(const RunTrace& trace, SimTime moment);

/// The next order: its name, its time and how long until then, or that all orders are given.
/// Nothing before the plan's start and after its end.
[[nodiscard]] std::optional<std::string> NextOrderText(const RunTrace& trace, DateTime now);

/// The messages of a run in at most two texts: of more than two the first, and how many more.
[[nodiscard]] std::string MessagesText(const RunTrace& trace);

}  // namespace tarvelin
