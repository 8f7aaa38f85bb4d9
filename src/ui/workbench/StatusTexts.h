// What the workbench tells of a run, in words.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// "Mo 20.11. 12:30:05".
[[nodiscard]] std::string ShortDateTimeText(DateTime time);

/// All there is at a moment: stocks, rates, energy, levels.
[[nodiscard]] std::string StatusText(const RunTrace& trace, SimTime moment);

/// The first order that is still to be given, as long as the plan covers the moment: its name, when
/// and in how long. Nothing before the plan's start and behind its end.
[[nodiscard]] std::optional<std::string> NextOrderText(const RunTrace& trace, DateTime now);

/// What a run has to tell, in two lines at most: of many messages the first one, and how many more.
[[nodiscard]] std::string MessagesText(const RunTrace& trace);

}  // namespace tarvelin
