// Entries and lines of a calendar file.
#include "export/Calendar.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <vector>

#include "model/Cost.h"
#include "simulation/RunTexts.h"
#include "util/DateTime.h"
#include "util/Utf8.h"

namespace tarvelin {

namespace {

constexpr Long kMinute = 60;

/// RFC 5545, 3.1: lines end with CR LF and have at most 75 bytes; longer ones continue after a
/// blank. Never splits a character.
std::string ContentLine(std::string_view text) {
    constexpr std::size_t kMax = 75;
    std::string folded;
    std::size_t length = 0;
    while (!text.empty()) {
        const std::size_t size = FirstCharacterSize(text);
        if (length + size > kMax) {
            folded += "\r\n ";
            length = 1;
        }
        folded += text.substr(0, size);
        length += size;
        text.remove_prefix(size);
    }
    return folded + "\r\n";
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        if (character == '\n') {
            escaped += "\\n";
            continue;
        }
        escaped += character == '\\' || character == ';' || character == ',' ? "\\" : "";
        escaped += character;
    }
    return escaped;
}

/// "20061118T123000".
std::string Stamp(DateTime at) {
    const std::string date = DateText(at);
    const std::string timeOfDay = TimeOfDayText(at);
    return date.substr(6) + date.substr(3, 2) + date.substr(0, 2) + "T" + timeOfDay.substr(0, 2) +
           timeOfDay.substr(3, 2) + timeOfDay.substr(6, 2);
}

std::string Stamp(std::chrono::sys_seconds createdAt) {
    // From 30 December 1899 to 1 January 1970.
    constexpr std::int64_t kOffset = 25569 * std::int64_t{86400};
    return Stamp(DateTime(createdAt.time_since_epoch().count() + kOffset)) + "Z";
}

using CalendarEntry = std::vector<const StartEvent*>;

std::vector<CalendarEntry> Entries(const RunTrace& trace) {
    constexpr DateTime kLast(std::int64_t{2958466} * 86400);
    std::vector<const StartEvent*> starts;
    for (const StartEvent& start : trace.starts) {
        if (trace.conditions.WallClock(start.start) < kLast) {
            starts.push_back(&start);
        }
    }
    // With a click buffer a row can start before the row above it.
    std::ranges::stable_sort(starts, {}, [](const StartEvent* other) { return other->start; });
    std::vector<CalendarEntry> entries;
    for (const StartEvent* const start : starts) {
        if (entries.empty() || start->start - entries.back().front()->start > kMinute) {
            entries.emplace_back();
        }
        entries.back().push_back(start);
    }
    return entries;
}

std::string Description(const RunTrace& trace, const CalendarEntry& entry) {
    std::string text;
    for (const StartEvent* const start : entry) {
        text += text.empty() ? "" : "\n";
        text += TimeOfDayText(trace.conditions.WallClock(start->start)) + " " + OrderText(*start);
        if (start->order.kind == Order::Kind::Item) {
            text += "\n" +
                    GetUpgradecostString(start->order.item, static_cast<Byte>(start->number - 1));
        }
        const std::string reason = DelayText(trace, start->row);
        text += reason.empty() ? "" : "\n" + reason;
    }
    return text;
}

std::string Title(const CalendarEntry& entry) {
    std::string text;
    for (const StartEvent* const start : entry) {
        text += text.empty() ? "" : ", ";
        text += OrderText(*start);
    }
    return text;
}

/// Production rows have no level; they are numbered in the order of the list.
std::string UniqueId(const RunTrace& trace, const StartEvent& start) {
    const bool item = start.order.kind == Order::Kind::Item;
    const auto production = std::ranges::count_if(trace.starts, [&](const StartEvent& other) {
        return other.order.kind == Order::Kind::Production && other.row <= start.row;
    });
    const std::string tag = start.order.Tag();
    return tag.substr(0, tag.find(':')) + "-" + std::to_string(item ? start.number : production) +
           "-" + Stamp(trace.conditions.StartDate) + "@tarvelin";
}

}  // namespace

std::string CalendarText(const RunTrace& trace, std::optional<Long> reminder,
                         std::chrono::sys_seconds createdAt) {
    std::string text =
        "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Tarvelin//Tarvelin//DE\r\n"
        "CALSCALE:GREGORIAN\r\n";
    for (const CalendarEntry& entry : Entries(trace)) {
        const StartEvent& first = *entry.front();
        const std::string title = Escaped(Title(entry));
        text += "BEGIN:VEVENT\r\n" + ContentLine("UID:" + UniqueId(trace, first)) +
                ContentLine("DTSTAMP:" + Stamp(createdAt)) +
                ContentLine("DTSTART:" + Stamp(trace.conditions.WallClock(first.start))) +
                "DURATION:PT1M\r\n" + ContentLine("SUMMARY:" + title) +
                ContentLine("DESCRIPTION:" + Escaped(Description(trace, entry)));
        if (reminder) {
            text += "BEGIN:VALARM\r\nACTION:DISPLAY\r\n" +
                    ContentLine("TRIGGER:-PT" + std::to_string(*reminder) + "S") +
                    ContentLine("DESCRIPTION:" + title) + "END:VALARM\r\n";
        }
        text += "END:VEVENT\r\n";
    }
    return text + "END:VCALENDAR\r\n";
}

}  // namespace tarvelin
