// The integer types of the game model. On overflow they saturate.
#pragma once

#include <cstdint>
#include <limits>

#include "util/Rounding.h"

namespace tarvelin {

using Long = std::int32_t;
using Integer = std::int16_t;
using Byte = std::uint8_t;

/// The limit of T that `value` exceeds. Out of line, so that the fast path of Saturate stays small.
template <class T>
[[gnu::cold, gnu::noinline]] constexpr T RangeLimit(std::int64_t value) {
    return value < 0 ? std::numeric_limits<T>::min() : std::numeric_limits<T>::max();
}

/// `value` clamped to the range of T.
template <class T>
constexpr T Saturate(std::int64_t value) {
    const auto narrow = static_cast<T>(value);
    if (narrow == value) [[likely]] {
        return narrow;
    }
    return RangeLimit<T>(value);
}

/// The sum of two integers, saturated to the range of Long.
constexpr Long LongSum(std::int64_t a, std::int64_t b) {
    return Saturate<Long>(a + b);
}

/// Rounded half to even and saturated to the range of Long.
inline Long HalfEvenLong(double value) {
    return Saturate<Long>(Rounding::HalfEven(value));
}

}  // namespace tarvelin
