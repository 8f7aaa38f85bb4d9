// When an alarm rings.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "plan/SleepTable.h"
#include "simulation/Schedule.h"

namespace tarvelin {

/// How many seconds before a start the alarm rings; nothing for a text that is no whole number from
/// 0 to 86400.
[[nodiscard]] std::optional<Long> ParseLeadTime(std::string_view before);

/// How many build times are due `before` seconds after `now`, to the second. None
/// without a number of seconds.
[[nodiscard]] std::size_t DueStarts(const Schedule& schedule, DateTime now,
                                    std::string_view before);

/// How many sleep windows end in the minute that begins one minute after `now`. The texts of the
/// table are compared as they stand.
[[nodiscard]] std::size_t DueSleepEnds(const SleepTable& table, DateTime now);

}  // namespace tarvelin
