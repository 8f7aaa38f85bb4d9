// Parsing and printing of dates.
#include "util/DateTime.h"

#include <array>
#include <charconv>
#include <chrono>

namespace tarvelin {

namespace {

using std::chrono::sys_days;

constexpr std::int64_t kSecondsPerDay = 86400;
constexpr sys_days kDayZero{std::chrono::year{1899} / std::chrono::December / 30};

struct WeekdayName {
    std::string_view shortName;
    std::string_view longName;
};

constexpr std::array<WeekdayName, 7> kWeekdays{{{"So", "Sonntag"},
                                                {"Mo", "Montag"},
                                                {"Di", "Dienstag"},
                                                {"Mi", "Mittwoch"},
                                                {"Do", "Donnerstag"},
                                                {"Fr", "Freitag"},
                                                {"Sa", "Samstag"}}};

/// Parses a text from left to right. A step that fails marks the whole text as bad.
class Parser {
  public:
    explicit Parser(std::string_view text) : m_rest(text) {}

    /// Takes as many digits as there are, `min` to `max`.
    int Digits(std::size_t min, std::size_t max) {
        std::size_t n = 0;
        while (n < max && n < m_rest.size() && m_rest[n] >= '0' && m_rest[n] <= '9') {
            ++n;
        }
        int value = 0;
        std::from_chars(m_rest.data(), m_rest.data() + n, value);
        m_good = m_good && n >= min;
        m_taken = n;
        m_rest.remove_prefix(n);
        return value;
    }
    void Character(char character) {
        const bool present = BeginsWith(character);
        m_good = m_good && present;
        m_rest.remove_prefix(present ? 1 : 0);
    }
    [[nodiscard]] bool BeginsWith(char character) const {
        return !m_rest.empty() && m_rest.front() == character;
    }
    [[nodiscard]] std::size_t Taken() const { return m_taken; }
    [[nodiscard]] bool AtEndAndGood() const { return m_good && m_rest.empty(); }
    void Spoil() { m_good = false; }

  private:
    std::string_view m_rest;
    std::size_t m_taken = 0;
    bool m_good = true;
};

int ParseYear(Parser& parser) {
    constexpr int kFirstYear = 100;
    constexpr int kLastYearOf20xx = 29;
    const int year = parser.Digits(2, 4);
    if (parser.Taken() == 2) {
        return year <= kLastYearOf20xx ? 2000 + year : 1900 + year;
    }
    if (parser.Taken() == 3 || year < kFirstYear) {
        parser.Spoil();
    }
    return year;
}

std::int64_t DayNumber(DateTime time) {
    const std::int64_t s = time.Seconds();
    return s >= 0 ? s / kSecondsPerDay : -((-s + kSecondsPerDay - 1) / kSecondsPerDay);
}

void AppendDigits(std::string& text, std::int64_t number, std::size_t minDigits) {
    const std::string digits = std::to_string(number);
    text.append(digits.size() < minDigits ? minDigits - digits.size() : 0, '0');
    text += digits;
}

void AppendDate(std::string& text, DateTime time) {
    const std::chrono::year_month_day day{kDayZero + std::chrono::days{DayNumber(time)}};
    AppendDigits(text, static_cast<unsigned>(day.day()), 2);
    text += '.';
    AppendDigits(text, static_cast<unsigned>(day.month()), 2);
    text += '.';
    AppendDigits(text, static_cast<int>(day.year()), 4);
}

void AppendTimeOfDay(std::string& text, DateTime time) {
    const std::int64_t s = time.Seconds() - DayNumber(time) * kSecondsPerDay;
    AppendDigits(text, s / 3600, 2);
    text += ':';
    AppendDigits(text, s / 60 % 60, 2);
    text += ':';
    AppendDigits(text, s % 60, 2);
}

}  // namespace

std::optional<DateTime> ParseDateTime(std::string_view text) {
    Parser parser(text);
    const auto day = static_cast<unsigned>(parser.Digits(1, 2));
    parser.Character('.');
    const auto month = static_cast<unsigned>(parser.Digits(1, 2));
    parser.Character('.');
    const int year = ParseYear(parser);
    parser.Character(' ');
    const int hour = parser.Digits(1, 2);
    parser.Character(':');
    const int minute = parser.Digits(1, 2);
    int second = 0;
    if (parser.BeginsWith(':')) {
        parser.Character(':');
        second = parser.Digits(1, 2);
    }
    const std::chrono::year_month_day date{std::chrono::year{year}, std::chrono::month{month},
                                           std::chrono::day{day}};
    if (!parser.AtEndAndGood() || !date.ok() || hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    const std::int64_t days = (sys_days{date} - kDayZero).count();
    const int secondOfDay = hour * 3600 + minute * 60 + second;
    return DateTime(days * kSecondsPerDay + secondOfDay);
}

DateTime StartOfDay(DateTime time) {
    return DateTime(DayNumber(time) * kSecondsPerDay);
}

int Weekday(DateTime time) {
    const std::chrono::weekday day{kDayZero + std::chrono::days{DayNumber(time)}};
    return static_cast<int>(day.c_encoding()) + 1;
}

std::string_view WeekdayShort(DateTime time) {
    return kWeekdays.at(static_cast<std::size_t>(Weekday(time) - 1)).shortName;
}

std::string_view WeekdayLong(DateTime time) {
    return kWeekdays.at(static_cast<std::size_t>(Weekday(time) - 1)).longName;
}

std::string DateText(DateTime time) {
    std::string text;
    AppendDate(text, time);
    return text;
}

std::string TimeOfDayText(DateTime time) {
    std::string text;
    AppendTimeOfDay(text, time);
    return text;
}

std::string ShortTimeOfDayText(DateTime time) {
    const std::string text = TimeOfDayText(time);
    return text.substr(0, text.rfind(':'));
}

std::string DateTimeText(DateTime time) {
    std::string text;
    AppendDate(text, time);
    text += ' ';
    AppendTimeOfDay(text, time);
    return text;
}

}  // namespace tarvelin
