// Texts of fixed-point numbers.
#include "util/FixedPoint.h"

namespace tarvelin {

namespace {

std::string AllDecimals(FixedPoint value, char separatorChar) {
    const std::int64_t raw = value.Raw();
    // Unsigned, as the lowest number has no positive counterpart.
    const std::uint64_t amount =
        raw < 0 ? 0U - static_cast<std::uint64_t>(raw) : static_cast<std::uint64_t>(raw);
    std::string digits = std::to_string(amount);
    if (digits.size() <= FixedPoint::kDecimals) {
        digits.insert(0, FixedPoint::kDecimals + 1 - digits.size(), '0');
    }
    digits.insert(digits.size() - FixedPoint::kDecimals, 1, separatorChar);
    return raw < 0 ? "-" + digits : digits;
}

}  // namespace

std::string DecimalText(FixedPoint value) {
    std::string text = AllDecimals(value, ',');
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == ',') {
        text.pop_back();
    }
    return text;
}

std::string FourDecimalsText(FixedPoint value) {
    return AllDecimals(value, '.');
}

}  // namespace tarvelin
