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

/// The end of the range of T on the side of `value`. A function of its own, as it is hardly ever
/// needed: the clock of a run waits for each sum.
template <class T>
[[gnu::cold, gnu::noinline]] constexpr T RangeLimit(std::int64_t value) {
    return value < 0 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
}

/// `value` held within the range of T.
template <class T>
constexpr T Saturate(std::int64_t value) {
    const auto narrow = static_cast<T>(value);
    if (narrow == value) [[likely]] {
        return narrow;
    }
    return RangeLimit<T>(value);
}

/// Sum and difference of two whole numbers, held within the range of Long.
constexpr Long LongSum(std::int64_t a, std::int64_t b) {
    return Saturate<Long>(a + b);
}

/// A floating value as a Long, half to even, held within the range.
inline Long HalfEvenLong(double value) {
    return Saturate<Long>(Rounding::HalfEven(value));
}

}  // namespace tarvelin
