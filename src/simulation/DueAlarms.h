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
[[nodiscard]] std::optional<Long> LiesVorlauf(std::string_view vorher);

/// How many build times are due `vorher` seconds after `jetzt`, to the second. None
/// without a number of seconds.
[[nodiscard]] std::size_t FaelligeBauzeiten(const Bauzeiten& bauzeiten, DateTime jetzt,
                                            std::string_view vorher);

/// How many sleep windows end in the minute that begins one minute after `jetzt`. The texts of the
/// table are compared as they stand.
[[nodiscard]] std::size_t FaelligeSchlafzeiten(const SleepTable& tabelle, DateTime jetzt);

}  // namespace tarvelin
