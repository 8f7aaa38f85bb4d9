// Wall-clock moments, parsed from and printed as German text regardless of the locale.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "util/Integers.h"

namespace tarvelin {

/// A wall-clock moment in whole seconds since 30 December 1899, 00:00, in the Gregorian calendar.
class DateTime {
  public:
    constexpr DateTime() = default;
    constexpr explicit DateTime(std::int64_t seconds) : m_seconds(seconds) {}

    friend constexpr DateTime operator+(DateTime time, std::int64_t seconds) {
        return DateTime(time.m_seconds + seconds);
    }
    /// Seconds from `b` to `a`, saturated to the range of Long.
    friend constexpr Long operator-(DateTime a, DateTime b) {
        return Saturate<Long>(a.m_seconds - b.m_seconds);
    }
    friend constexpr auto operator<=>(DateTime, DateTime) = default;

    [[nodiscard]] constexpr std::int64_t Seconds() const { return m_seconds; }

  private:
    std::int64_t m_seconds = 0;
};

/// Parses "D.M.Y h:m" or "D.M.Y h:m:s". Day, month, hour, minute and second have one or two digits;
/// one blank separates date and time, and nothing may surround them. Years have two digits (00 to
/// 29 are 20xx, 30 to 99 are 19xx) or four (0100 to 9999). Nothing for any other text, or if the
/// day or time doesn't exist.
[[nodiscard]] std::optional<DateTime> ParseDateTime(std::string_view text);

/// Midnight, when the day of a moment begins.
[[nodiscard]] DateTime StartOfDay(DateTime time);

/// Weekday from 1, Sunday, to 7, Saturday.
[[nodiscard]] int Weekday(DateTime time);
/// "So", "Mo" ... "Sa".
[[nodiscard]] std::string_view WeekdayShort(DateTime time);
/// "Sonntag", "Montag" ... "Samstag".
[[nodiscard]] std::string_view WeekdayLong(DateTime time);

/// "18.11.2006"; years after 9999 have five digits.
[[nodiscard]] std::string DateText(DateTime time);
/// "12:30:00".
[[nodiscard]] std::string TimeOfDayText(DateTime time);
/// "12:30".
[[nodiscard]] std::string ShortTimeOfDayText(DateTime time);
/// "18.11.2006 12:30:00".
[[nodiscard]] std::string DateTimeText(DateTime time);

}  // namespace tarvelin
