// A run as entries of a calendar.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// The starts of a run as an iCalendar file (RFC 5545): an entry for each moment at which the
/// player has to be there, in his local time without a zone; orders within a minute of an entry's
/// first stand in it. An entry's name is made of its first order and the plan's start, so that
/// reading another calendar of the plan replaces it.
///
/// `reminder`: seconds before the start at which the calendar reminds; nothing for never.
/// `createdAt`: when the file is made, in universal time. Starts behind the year 9999 are left out.
[[nodiscard]] std::string CalendarText(const RunTrace& trace, std::optional<Long> reminder,
                                       std::chrono::sys_seconds createdAt);

}  // namespace tarvelin
