// Entering and parsing sleep windows.
#include "plan/SleepTable.h"

#include <algorithm>

#include "util/NumberText.h"

namespace tarvelin {

namespace {

struct Period {
    DateTime start;
    DateTime end;
};

std::string MinutesText(DateTime time) {
    constexpr std::size_t kWithoutSeconds = 16;
    return DateTimeText(time).substr(0, kWithoutSeconds);
}

std::optional<Period> ParseRow(const SleepRow& row) {
    const auto start = ParseDateTime(row.Startzeit);
    const auto end = ParseDateTime(row.Endzeit);
    if (!start || !end) {
        return std::nullopt;
    }
    return Period{*start, *end};
}

std::optional<DateTime> ParseStart(const SleepInput& input) {
    return ParseDateTime(input.date + " " + input.startHours + ":" + input.startMinutes);
}

std::optional<Long> ParseDuration(const SleepInput& input) {
    const auto hours = ParseNumber(input.durationHours);
    const auto minutes = ParseNumber(input.durationMinutes);
    if (!hours || !minutes) {
        return std::nullopt;
    }
    return HalfEvenLong(*hours * 3600 + *minutes * 60);
}

bool Overlap(const Period& oldPeriod, const Period& newPeriod) {
    const auto notLater = [](DateTime time, DateTime other) {
        return !cSchlafzeit::IstSpaeter(other, time);
    };
    const auto inOld = [&](DateTime time) {
        return notLater(oldPeriod.start, time) && cSchlafzeit::IstSpaeter(time, oldPeriod.end);
    };
    const bool oldBeginsInNew = cSchlafzeit::IstSpaeter(newPeriod.start, oldPeriod.start) &&
                                notLater(oldPeriod.end, newPeriod.end);
    return inOld(newPeriod.start) || inOld(newPeriod.end) || oldBeginsInNew;
}

Message InputError(const char* text) {
    return {.text = text, .title = kBadInputTitle};
}

}  // namespace

std::optional<Message> AddSleepRow(const SleepInput& input, SleepTable& table) {
    const auto duration = ParseDuration(input);
    if (!duration) {
        return InputError("Keine gültige Dauer eingegeben...");
    }
    const auto start = ParseStart(input);
    if (!start) {
        return InputError("Kein gültiges Datum eingegeben...");
    }
    const Period newPeriod{*start, *start + *duration};
    const bool occupied = std::ranges::any_of(table, [&](const SleepRow& row) {
        const auto oldPeriod = ParseRow(row);
        return oldPeriod && Overlap(*oldPeriod, newPeriod);
    });
    if (occupied) {
        return InputError("Kein überschneidenden Zeiträumen eingegeben...");
    }
    table.push_back({MinutesText(newPeriod.start), MinutesText(newPeriod.end)});
    return std::nullopt;
}

std::string SleepEndText(const SleepInput& input) {
    const auto start = ParseStart(input);
    const auto duration = ParseDuration(input);
    if (!start || !duration) {
        return "Error";
    }
    const DateTime end = *start + *duration;
    const std::string timeOfDay = TimeOfDayText(end);
    constexpr std::size_t kWithoutSeconds = 5;
    return std::string(WeekdayShort(end)) + ".  " + DateText(end) + " " +
           timeOfDay.substr(0, kWithoutSeconds);
}

std::vector<cSchlafzeit> ParseSleepTable(const SleepTable& table) {
    std::vector<cSchlafzeit> sleepWindows;
    sleepWindows.reserve(table.size());
    for (const SleepRow& row : table) {
        if (const auto period = ParseRow(row)) {
            sleepWindows.emplace_back(period->start, period->end);
        }
    }
    return sleepWindows;
}

}  // namespace tarvelin
