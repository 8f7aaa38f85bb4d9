// The roundings of the game's formulas: every change from a floating value to a whole number
// goes through one of these, so that which rounding a figure has can be read where it is made.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace tarvelin::Rundung {

/// The whole number of `wert`, which has no fraction; held at the ends of the range, 0 for NaN.
template <class Runden>
std::int64_t InGrenzen(double wert, Runden runden) {
    constexpr double kZweiHoch63 = 9223372036854775808.0;
    if (std::abs(wert) < kZweiHoch63) [[likely]] {
        return runden(wert);
    }
    if (std::isnan(wert)) {
        return 0;
    }
    return wert < 0 ? std::numeric_limits<std::int64_t>::min()
                    : std::numeric_limits<std::int64_t>::max();
}

/// Nearest whole number, a half going to the even one (the platform's own conversion).
inline std::int64_t half_even(double wert) {
    return InGrenzen(wert, [](double w) { return static_cast<std::int64_t>(std::llrint(w)); });
}

/// Towards zero.
inline std::int64_t cut(double wert) {
    return InGrenzen(wert, [](double w) { return static_cast<std::int64_t>(w); });
}

/// Down to the next whole number.
inline std::int64_t floor(double wert) {
    return InGrenzen(wert, [](double w) {
        const auto ganz = static_cast<std::int64_t>(w);
        return ganz - (static_cast<double>(ganz) > w ? 1 : 0);
    });
}

}  // namespace tarvelin::Rundung
