// German number texts: a decimal comma, no thousands separator, no exponent.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvelin {

/// Parses an optional sign, digits, and optionally a comma with at least one digit after it; blanks
/// may surround it ("5", "-12,5", ",5"; not "5,", "1.5", "1e3"). Nothing for any other text.
/// Numbers beyond the range of a double saturate.
[[nodiscard]] std::optional<double> ParseNumber(std::string_view text);

[[nodiscard]] bool IsNumber(std::string_view text);

/// Parses a number without a comma that lies from `min` to `max`; beyond 64 bits it saturates
/// before the comparison.
[[nodiscard]] std::optional<std::int64_t> ParseWholeNumber(std::string_view text, std::int64_t min,
                                                           std::int64_t max);

/// Rounded half to even to at most `decimals` (0 to 15) decimals, without trailing zeros.
[[nodiscard]] std::string DecimalText(double value, int decimals);

/// `value` truncated towards zero, in full without an exponent.
[[nodiscard]] std::string WholeText(double value);

/// The same to be read: with a full stop between thousands and a real minus sign: "−1.067".
[[nodiscard]] std::string GroupedText(double value);

}  // namespace tarvelin
