// Fixed-point numbers with four decimals, in which the game keeps stocks and rates.
#pragma once

#include <compare>
#include <cstdint>
#include <limits>
#include <string>

#include "util/Integers.h"

namespace tarvelin {

/// A 64-bit count of ten-thousandths. Sums, differences and products are exact and saturate.
class FixedPoint {
  public:
    static constexpr int kDecimals = 4;
    static constexpr std::int64_t kUnit = 10000;

    constexpr FixedPoint() = default;

    static constexpr FixedPoint FromRaw(std::int64_t raw) { return FixedPoint(raw); }
    static constexpr FixedPoint FromWhole(std::int64_t whole) {
        return FixedPoint(Product(whole, kUnit));
    }
    /// Rounded half to even at the fourth decimal.
    static FixedPoint FromDouble(double value) {
        return FixedPoint(Rounding::HalfEven(value * static_cast<double>(kUnit)));
    }

    [[nodiscard]] constexpr std::int64_t Raw() const { return m_raw; }
    [[nodiscard]] constexpr double ToDouble() const {
        return static_cast<double>(m_raw) / static_cast<double>(kUnit);
    }
    /// Truncated towards zero.
    [[nodiscard]] constexpr std::int64_t WholePart() const { return m_raw / kUnit; }

    friend constexpr FixedPoint operator+(FixedPoint a, FixedPoint b) {
        std::int64_t sum = 0;
        if (__builtin_add_overflow(a.m_raw, b.m_raw, &sum)) [[unlikely]] {
            return Limit(a.m_raw < 0);
        }
        return FixedPoint(sum);
    }
    friend constexpr FixedPoint operator-(FixedPoint a, FixedPoint b) {
        std::int64_t difference = 0;
        if (__builtin_sub_overflow(a.m_raw, b.m_raw, &difference)) [[unlikely]] {
            return Limit(a.m_raw < 0);
        }
        return FixedPoint(difference);
    }
    friend constexpr FixedPoint operator*(FixedPoint a, std::int64_t factor) {
        return FixedPoint(Product(a.m_raw, factor));
    }
    friend constexpr auto operator<=>(FixedPoint, FixedPoint) = default;

  private:
    constexpr explicit FixedPoint(std::int64_t raw) : m_raw(raw) {}

    static constexpr FixedPoint Limit(bool negative) {
        return FixedPoint(negative ? std::numeric_limits<std::int64_t>::min()
                                   : std::numeric_limits<std::int64_t>::max());
    }
    static constexpr std::int64_t Product(std::int64_t a, std::int64_t b) {
        std::int64_t product = 0;
        if (__builtin_mul_overflow(a, b, &product)) [[unlikely]] {
            return Limit((a < 0) != (b < 0)).m_raw;
        }
        return product;
    }

    std::int64_t m_raw = 0;
};

/// Plain decimal text with a decimal comma and up to four decimals: "440,6278", "500", "-0,5".
[[nodiscard]] std::string DecimalText(FixedPoint value);

/// With a decimal point and all four decimals, for machines: "440.6278".
[[nodiscard]] std::string FourDecimalsText(FixedPoint value);

}  // namespace tarvelin
