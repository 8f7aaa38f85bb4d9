// Compares the clock with the tables.
#include "simulation/DueAlarms.h"

#include <algorithm>

#include "util/NumberText.h"

namespace tarvelin {

std::optional<Long> ParseLeadTime(std::string_view before) {
    constexpr std::int64_t kLongest = 86400;
    const auto seconds = ParseWholeNumber(before, 0, kLongest);
    return seconds ? std::optional(static_cast<Long>(*seconds)) : std::nullopt;
}

std::size_t DueStarts(const Schedule& schedule, DateTime now, std::string_view before) {
    const auto seconds = ParseLeadTime(before);
    if (!seconds) {
        return 0;
    }
    return static_cast<std::size_t>(
        std::ranges::count(schedule, now + *seconds, &ScheduleEntry::start));
}

std::size_t DueSleepEnds(const SleepTable& table, DateTime now) {
    constexpr std::int64_t kOneMinute = 60;
    const std::string end = DateTimeText(now + kOneMinute);
    return static_cast<std::size_t>(std::ranges::count_if(
        table, [&](const SleepRow& row) { return row.Endzeit + ":00" == end; }));
}

}  // namespace tarvelin
