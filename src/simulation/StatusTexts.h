// Texts that say how a run stands at a moment.
#pragma once

#include <cstddef>
#include <string>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// "Mo 20.11. 12:30:05".
[[nodiscard]] std::string ShortDateTimeText(DateTime time);

/// Stocks, rates and energy at a moment, and the levels on a second line.
[[nodiscard]] std::string StatusText(const RunTrace& trace, SimTime moment);

/// The first order that isn't due before this moment of the wall clock; nothing if all are given.
[[nodiscard]] const StartEvent* NextStart(const RunTrace& trace, DateTime now);

/// The messages of a run in at most two texts: of more than two the first, and how many more.
[[nodiscard]] std::string MessagesText(const RunTrace& trace);

}  // namespace tarvelin
