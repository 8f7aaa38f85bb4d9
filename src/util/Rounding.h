// The roundings of the game's formulas. Every conversion from floating point to an integer goes
// through one of them, so that the code shows how each figure is rounded.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace tarvelin::Rounding {

/// Applies `round` to values that fit 64 bits; others saturate, NaN gives 0.
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

/// To the nearest integer, halves to even, as the game's platform converts.
inline std::int64_t HalfEven(double value) {
    return Clamped(value, [](double v) { return static_cast<std::int64_t>(std::llrint(v)); });
}

/// Towards zero.
inline std::int64_t Cut(double value) {
    return Clamped(value, [](double v) { return static_cast<std::int64_t>(v); });
}

/// Towards minus infinity.
inline std::int64_t Floor(double value) {
    return Clamped(value, [](double v) {
        const auto whole = static_cast<std::int64_t>(v);
        return whole - (static_cast<double>(whole) > v ? 1 : 0);
    });
}

}  // namespace tarvelin::Rounding
