// The whole-number kinds of the game model and their one rule for overflow: a value that leaves
// its range is held at the end of that range.
#pragma once

#include <cstdint>
#include <limits>

#include "util/Rounding.h"

namespace tarvelin {

using Long = std::int32_t;
using Integer = std::int16_t;
using Byte = std::uint8_t;

/// The end of the range of T on the side of `wert`. A function of its own, as it is hardly ever
/// needed: the clock of a run waits for each sum.
template <class T>
[[gnu::cold, gnu::noinline]] constexpr T Bereichsende(std::int64_t wert) {
    return wert < 0 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
}

/// `wert` held within the range of T.
template <class T>
constexpr T Saettige(std::int64_t wert) {
    const auto eng = static_cast<T>(wert);
    if (eng == wert) [[likely]] {
        return eng;
    }
    return Bereichsende<T>(wert);
}

/// Sum and difference of two whole numbers, held within the range of Long.
constexpr Long LongSumme(std::int64_t a, std::int64_t b) {
    return Saettige<Long>(a + b);
}

/// A floating value as a Long, half to even, held within the range.
inline Long HalfEvenLong(double wert) {
    return Saettige<Long>(Rundung::half_even(wert));
}

}  // namespace tarvelin
