// The roundings of the game's formulas: every change from a floating value to a whole number
// goes through one of these, so that which rounding a figure has can be read where it is made.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace tarvelin::Rounding {

/// The whole number of `value`, which has no fraction; held at the ends of the range, 0 for NaN.
template <class Round>
std::int64_t Clamped(double value, Round round) {
    constexpr double kTwoToThe63 = 9223372036854775808.0;
    if (std::abs(value) < kTwoToThe63) [[likely]] {
        return round(value);
    }
    if (std::isnan(value)) {
        return 0;
    }
    return value < 0 ? std::numeric_limits<std::int64_t>::min()
                     : std::numeric_limits<std::int64_t>::max();
}

/// Nearest whole number, a half going to the even one (the platform's own conversion).
inline std::int64_t HalfEven(double value) {
    return Clamped(value, [](double v) { return static_cast<std::int64_t>(std::llrint(v)); });
}

/// Towards zero.
inline std::int64_t Cut(double value) {
    return Clamped(value, [](double v) { return static_cast<std::int64_t>(v); });
}

/// Down to the next whole number.
inline std::int64_t Floor(double value) {
    return Clamped(value, [](double v) {
        const auto whole = static_cast<std::int64_t>(v);
        return whole - (static_cast<double>(whole) > v ? 1 : 0);
    });
}

}  // namespace tarvelin::Rounding
