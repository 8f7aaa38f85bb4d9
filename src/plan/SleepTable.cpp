// Entering and parsing sleep windows.
#include "plan/SleepTable.h"

#include <algorithm>

#include "util/NumberText.h"

namespace tarvelin {

namespace {

std::string MinutesText(DateTime time) {
    constexpr std::size_t kWithoutSeconds = 16;
    return DateTimeText(time).substr(0, kWithoutSeconds);
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

bool Overlap(const cSchlafzeit& oldWindow, const cSchlafzeit& newWindow) {
    const auto notLater = [](DateTime time, DateTime other) {
        return !cSchlafzeit::IstSpaeter(other, time);
    };
    const auto inOld = [&](DateTime time) {
        return notLater(oldWindow.Startzeit(), time) &&
               cSchlafzeit::IstSpaeter(time, oldWindow.Endzeit());
    };
    const bool oldBeginsInNew =
        cSchlafzeit::IstSpaeter(newWindow.Startzeit(), oldWindow.Startzeit()) &&
        notLater(oldWindow.Endzeit(), newWindow.Endzeit());
    return inOld(newWindow.Startzeit()) || inOld(newWindow.Endzeit()) || oldBeginsInNew;
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
    const cSchlafzeit newWindow(*start, *start + *duration);
    const bool occupied = std::ranges::any_of(table, [&](const SleepRow& row) {
        const auto oldWindow = ParseSleepRow(row);
        return oldWindow && Overlap(*oldWindow, newWindow);
    });
    if (occupied) {
        return InputError("Kein überschneidenden Zeiträumen eingegeben...");
    }
    table.push_back(SleepRowOf(newWindow.Startzeit(), newWindow.Endzeit()));
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

SleepRow SleepRowOf(DateTime start, DateTime end) {
    return {.Startzeit = MinutesText(start), .Endzeit = MinutesText(end)};
}

std::optional<cSchlafzeit> ParseSleepRow(const SleepRow& row) {
    const auto start = ParseDateTime(row.Startzeit);
    const auto end = ParseDateTime(row.Endzeit);
    if (!start || !end) {
        return std::nullopt;
    }
    return cSchlafzeit(*start, *end);
}

std::vector<cSchlafzeit> ParseSleepTable(const SleepTable& table) {
    std::vector<cSchlafzeit> sleepWindows;
    sleepWindows.reserve(table.size());
    for (const SleepRow& row : table) {
        if (const auto window = ParseSleepRow(row)) {
            sleepWindows.push_back(*window);
        }
    }
    return sleepWindows;
}

}  // namespace tarvelin
