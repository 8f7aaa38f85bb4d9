// Numbers as the user reads and types them: German, with a decimal comma and nothing else.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvelin {

/// The number that a text stands for: optional blanks around it, an optional sign, digits and at
/// most one decimal comma with at least one digit behind it ("5", "-12,5", ",5"; not "5,", "1.5",
/// "1e3"). Nothing for any other text. A number beyond the range of a double is held at its end.
[[nodiscard]] std::optional<double> ParseNumber(std::string_view text);

[[nodiscard]] bool IsNumber(std::string_view text);

/// The whole number of a number text without a comma, if it lies from `min` to `max`; digits
/// beyond 64 bits count as the end of that range.
[[nodiscard]] std::optional<std::int64_t> ParseWholeNumber(std::string_view text, std::int64_t min,
                                                           std::int64_t max);

/// Plain decimal text, rounded half to even to at most `decimals` (0 to 15) decimals, without
/// trailing zeros.
[[nodiscard]] std::string DecimalText(double value, int decimals);

/// The whole part of `value` (cut towards zero) in full plain digits, however large.
[[nodiscard]] std::string WholeText(double value);

}  // namespace tarvelin
