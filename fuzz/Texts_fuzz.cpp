// Fuzzes the readers of numbers, dates, durations and token lists.
#include <array>
#include <cmath>
#include <ctime>
#include <limits>
#include <sstream>

#include "FuzzInput.h"
#include "util/DateTime.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {
namespace {

constexpr std::int64_t kSecondsTo1970 = 25569LL * 86400;

/// The text with each digit replaced by a 9.
std::string FormOf(std::string_view text) {
    std::string form(text);
    for (char& character : form) {
        character = character >= '0' && character <= '9' ? '9' : character;
    }
    return form;
}

std::string_view WithoutBlanks(std::string_view text) {
    const auto begin = text.find_first_not_of(' ');
    return begin == std::string_view::npos
               ? std::string_view()
               : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

/// Compares with the C library, which wants a decimal point and accepts more than we do.
void CheckNumber(const std::string& text) {
    std::string c(WithoutBlanks(text));
    const auto comma = c.find(',');
    const bool form = !c.empty() && c.find_first_not_of("+-,0123456789") == std::string::npos &&
                      c.find_last_of("+-") + 1 <= 1 &&
                      c.find(',', comma + 1) == std::string::npos && c.back() >= '0' &&
                      c.back() <= '9';
    const auto number = ParseNumber(text);
    Require(number.has_value() == form && IsNumber(text) == form, "the form of a number", text);
    if (!number) {
        Require(!ParseWholeNumber(text, std::numeric_limits<std::int64_t>::min(), 0), "no whole",
                text);
        return;
    }
    if (comma != std::string::npos) {
        c[comma] = '.';
    }
    constexpr double kMax = std::numeric_limits<double>::max();
    const double value = std::min(std::max(std::strtod(c.c_str(), nullptr), -kMax), kMax);
    Require(*number == value, "the value of a number", text);
    const long long whole = std::strtoll(c.c_str(), nullptr, 10);
    const auto parsed = ParseWholeNumber(text, -1000, std::numeric_limits<std::int64_t>::max());
    Require(
        parsed == (comma == std::string::npos && whole >= -1000 ? std::optional<std::int64_t>(whole)
                                                                : std::nullopt),
        "the value of a whole number", text);
}

void CheckDecimalText(double value, int decimals) {
    const std::string text = DecimalText(value, decimals);
    const auto back = ParseNumber(text);
    Require(back.has_value() && text != "-0", "a decimal text is a number", text);
    Require(text.find(',') == std::string::npos || (text.back() != '0' && text.back() != ','),
            "a decimal text is plain", text);
    const double step = std::pow(10.0, -decimals);
    Require(std::abs(*back - value) <= 0.500001 * step + std::abs(value) * 1e-15,
            "a decimal text is near its value", text);
    if (std::abs(value) < 9e15) {
        Require(WholeText(value) == std::to_string(static_cast<std::int64_t>(value)),
                "the whole part", WholeText(value));
    }
}

void CheckPadding(const std::string& text, int count) {
    const std::string front = PadIntegerDigits(text, count);
    const auto zeros = front.size() - text.size();
    Require(front == std::string(zeros, '0') + text, "zeros in front of the text", front);
    const std::string back = PadDecimals(text, count);
    Require(back.starts_with(text), "zeros behind the text", back);
    if (!IsNumber(text)) {
        Require(front == text && back == text, "what is no number stays", text);
        return;
    }
    const auto integers = static_cast<std::ptrdiff_t>(std::min(front.find(','), front.size()));
    Require(zeros == 0 || integers == count, "so many digits in front of the comma", front);
    Require(integers >= count, "not fewer digits in front of the comma", front);
    const auto fraction = static_cast<std::ptrdiff_t>(back.size() - 1 - back.find(','));
    Require(count < 1 || fraction >= count, "so many decimals", back);
}

/// The C library's calendar agrees about which dates exist and when they are.
void CheckDate(const std::string& text) {
    std::tm tm{};
    int consumed = 0;
    int year = 0;
    const auto fields =
        std::sscanf(text.c_str(), "%2d.%2d.%4d %2d:%2d%n:%2d%n", &tm.tm_mday, &tm.tm_mon, &year,
                    &tm.tm_hour, &tm.tm_min, &consumed, &tm.tm_sec, &consumed);
    bool expected = fields >= 5 && static_cast<std::size_t>(consumed) == text.size() &&
                    text.find_first_not_of("0123456789.: ") == std::string::npos;
    const std::string form = FormOf(text);
    const auto blank = form.find(' ');
    // sscanf skips blanks where we don't, and takes fewer digits than the given width.
    expected =
        expected && form.find(' ', blank + 1) == std::string::npos &&
        (form.substr(0, blank).ends_with(".9999") || form.substr(0, blank).ends_with(".99")) &&
        form[blank + 1] == '9' && form[0] == '9';
    if (form.substr(0, blank).ends_with(".99")) {
        year += year < 30 ? 2000 : 1900;
    }
    tm.tm_mon -= 1;
    tm.tm_year = year - 1900;
    std::tm exact = tm;
    const std::int64_t seconds = ::timegm(&exact);
    expected = expected && year >= 100 && exact.tm_mday == tm.tm_mday &&
               exact.tm_mon == tm.tm_mon && exact.tm_hour == tm.tm_hour &&
               exact.tm_min == tm.tm_min && exact.tm_sec == tm.tm_sec;
    const auto time = ParseDateTime(text);
    Require(time.has_value() == expected, "which dates there are", text);
    if (!time) {
        return;
    }
    Require(time->Seconds() == seconds + kSecondsTo1970, "when a date is", text);
    Require(Weekday(*time) == exact.tm_wday + 1, "the weekday of a date", text);
    Require(ParseDateTime(DateTimeText(*time)) == time, "a date's own text", DateTimeText(*time));
}

void CheckDuration(Long value, const std::string& unit, const std::string& format,
                   const std::string& highest) {
    const bool foreign = format.find_first_of("dhms(") == std::string::npos;
    const std::string text = FormatDuration(value, unit, format, highest);
    Require(!foreign || text == format || text.empty(), "only fields change", text);
    for (const auto& [name, seconds] :
         {std::pair("s", 1), std::pair("m", 60), std::pair("h", 3600), std::pair("d", 86400)}) {
        std::int64_t d = 0;
        std::int64_t h = 0;
        std::int64_t m = 0;
        std::int64_t s = 0;
        const std::string fields = FormatDuration(value, name, "d h m s", highest);
        std::istringstream(fields) >> d >> h >> m >> s;
        Require(((d * 24 + h) * 60 + m) * 60 + s == Saturate<Long>(std::int64_t{value} * seconds),
                "the fields of a duration sum up", fields);
        Require((highest != "h" || d == 0) && (highest != "m" || (d == 0 && h == 0)) &&
                    (highest != "s" || (d == 0 && h == 0 && m == 0)),
                "nothing above the top unit", fields);
        Require(highest == "s" || (s >= 0 && s < 60), "a minute has 60 seconds", fields);
    }
}

void CheckToken(const std::string& text, char separatorChar) {
    std::string_view without = text;
    without.remove_prefix(without.starts_with(separatorChar) ? 1 : 0);
    std::istringstream parts{std::string(without)};
    const std::string_view separator(&separatorChar, 1);
    int n = 0;
    for (std::string part; std::getline(parts, part, separatorChar);) {
        Require(GetToken(text, ++n, separator) == part, "tokens in their order", part);
    }
    Require(GetToken(text, n + 1, separator).empty() && GetToken(text, 0, separator).empty() &&
                GetToken(text, -1, separator).empty(),
            "no token outside the list", text);
    const bool present = text.find(separatorChar) != std::string::npos;
    Require(std::string(TextBefore(text, separator)) + (present ? std::string(separator) : "") +
                    std::string(TextAfter(text, separator)) ==
                text,
            "before and after", text);
}

}  // namespace
}  // namespace tarvelin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t length) {
    using namespace tarvelin;
    FuzzInput input(data, length);
    const std::string text = input.TakePart();
    const std::string second = input.TakePart();
    const std::string third(input.Rest());
    CheckNumber(text);
    CheckDate(text);
    const auto number = ParseNumber(second);
    const int count = number ? static_cast<int>(HalfEvenLong(*number) % 40) : 2;
    CheckPadding(text, count);
    if (const auto value = ParseNumber(text)) {
        CheckDecimalText(*value, std::abs(count) % 16);
        CheckDuration(HalfEvenLong(*value), second, third, third.substr(0, 1));
    }
    CheckDuration(count, second, text, third);
    CheckToken(text, second.empty() || second.front() < 0 ? ':' : second.front());
    static_cast<void>(GetToken(text, count, third));
    static_cast<void>(TextBefore(text, third));
    static_cast<void>(TextAfter(text, third));
    return 0;
}
