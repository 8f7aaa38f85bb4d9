// Which alarms ring at a given moment.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "plan/SleepTable.h"
#include "simulation/Schedule.h"

namespace tarvelin {

/// How many seconds before a start the alarm rings; nothing unless the text is a whole number from
/// 0 to 86400.
[[nodiscard]] std::optional<Long> ParseLeadTime(std::string_view before);

/// How many orders start exactly `before` seconds after `now`; 0 if `before` is no lead time.
[[nodiscard]] std::size_t DueStarts(const Schedule& schedule, DateTime now,
                                    std::string_view before);

/// How many sleep windows end exactly one minute after `now`. The texts of the table are compared,
/// so a row in another format never rings.
[[nodiscard]] std::size_t DueSleepEnds(const SleepTable& table, DateTime now);

}  // namespace tarvelin
