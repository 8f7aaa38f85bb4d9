// Parsing and printing of German number texts.
#include "util/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "util/Rounding.h"

namespace tarvelin {

namespace {

struct NumberForm {
    bool negative = false;
    /// With the comma, if there is one.
    std::string_view digits;
    bool hasComma = false;
};

constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

std::optional<NumberForm> Split(std::string_view text) {
    const auto begin = text.find_first_not_of(' ');
    if (begin == std::string_view::npos) {
        return std::nullopt;
    }
    text = text.substr(begin, text.find_last_not_of(' ') - begin + 1);
    NumberForm form;
    if (text.front() == '-' || text.front() == '+') {
        form.negative = text.front() == '-';
        text.remove_prefix(1);
    }
    const auto comma = text.find(',');
    const std::string_view whole = text.substr(0, comma);
    form.digits = text;
    form.hasComma = comma != std::string_view::npos;
    const std::string_view lastPart = form.hasComma ? text.substr(comma + 1) : whole;
    if (lastPart.empty() || !std::ranges::all_of(whole, IsDigit) ||
        !std::ranges::all_of(lastPart, IsDigit)) {
        return std::nullopt;
    }
    return form;
}

/// In full, with a decimal point and `decimals` decimals.
std::string AllDigits(double value, int decimals) {
    constexpr auto kMaxDigits =
        static_cast<std::size_t>(std::numeric_limits<double>::max_exponent10) + 4;
    std::string text(kMaxDigits + static_cast<std::size_t>(decimals), '\0');
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::fixed, decimals);
    text.resize(static_cast<std::size_t>(end.ptr - text.data()));
    return text;
}

double ClampedToDouble(double value) {
    constexpr double kMax = std::numeric_limits<double>::max();
    return std::isnan(value) ? 0.0 : std::clamp(value, -kMax, kMax);
}

}  // namespace

std::optional<double> ParseNumber(std::string_view text) {
    const auto form = Split(text);
    if (!form) {
        return std::nullopt;
    }
    std::string digits(1, '0');
    digits += form->digits;
    std::ranges::replace(digits, ',', '.');
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value,
                                        std::chars_format::fixed);
    if (result.ec == std::errc::result_out_of_range) {
        // Too large, or so small that it rounds to 0.
        value = digits.find_first_not_of('0') < digits.find('.')
                    ? std::numeric_limits<double>::max()
                    : 0.0;
    }
    return form->negative ? -value : value;
}

bool IsNumber(std::string_view text) {
    return Split(text).has_value();
}

std::optional<std::int64_t> ParseWholeNumber(std::string_view text, std::int64_t min,
                                             std::int64_t max) {
    const auto form = Split(text);
    if (!form || form->hasComma) {
        return std::nullopt;
    }
    std::string digits(form->negative ? 1 : 0, '-');
    digits += form->digits;
    std::int64_t value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = form->negative ? std::numeric_limits<std::int64_t>::min()
                               : std::numeric_limits<std::int64_t>::max();
    }
    return value >= min && value <= max ? std::optional(value) : std::nullopt;
}

std::string DecimalText(double value, int decimals) {
    constexpr double kNoFraction = 9007199254740992.0;  // 2^53: larger doubles are integers
    if (!(std::abs(value) < kNoFraction)) {
        return WholeText(value);
    }
    const double powerOfTen = std::pow(10.0, decimals);
    const double product = value * powerOfTen;
    // Without a fraction there is nothing to round, and dividing again would lose digits.
    const double rounded = std::abs(product) < kNoFraction
                               ? static_cast<double>(Rounding::HalfEven(product)) / powerOfTen
                               : value;
    std::string text = AllDigits(rounded == 0 ? 0.0 : rounded, decimals);
    if (const auto dot = text.find('.'); dot != std::string::npos) {
        text[dot] = ',';
        text.erase(text.find_last_not_of('0') + 1);
        text.erase(text.find_last_not_of(',') + 1);
    }
    return text;
}

std::string WholeText(double value) {
    const double whole = std::trunc(ClampedToDouble(value));
    return AllDigits(whole == 0 ? 0.0 : whole, 0);  // no "-0"
}

std::string GroupedText(double value) {
    constexpr std::ptrdiff_t kGroup = 3;
    std::string text = WholeText(std::abs(value));
    for (auto end = std::ssize(text) - kGroup; end > 0; end -= kGroup) {
        text.insert(static_cast<std::size_t>(end), ".");
    }
    // What is truncated to 0 has no sign.
    return value <= -1 ? "−" + text : text;
}

}  // namespace tarvelin
