// A run as entries of a calendar.
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// The starts of a run as an iCalendar file (RFC 5545) in local time without a zone. Orders that
/// start within a minute of an entry's first share that entry. The UID consists of the first order
/// and the plan's start, so that importing a newer calendar of the plan replaces the entry.
///
/// `reminder`: seconds before the start, or nothing for no alarm. `createdAt`: in UTC. Starts after
/// the year 9999 are left out.
[[nodiscard]] std::string CalendarText(const RunTrace& trace, std::optional<Long> reminder,
                                       std::chrono::sys_seconds createdAt);

}  // namespace tarvelin
