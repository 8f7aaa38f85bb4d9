// Fixed-point numbers with four decimals, as the stocks and rates of the game are kept.
#pragma once

#include <compare>
#include <cstdint>
#include <limits>
#include <string>

#include "util/Integers.h"

namespace tarvelin {

/// A 64-bit count of ten-thousandths. Sums, differences and products are exact and are held at the
/// ends of the range.
class Festkomma {
  public:
    static constexpr int kStellen = 4;
    static constexpr std::int64_t kEinheit = 10000;

    constexpr Festkomma() = default;

    static constexpr Festkomma AusRohwert(std::int64_t rohwert) { return Festkomma(rohwert); }
    static constexpr Festkomma AusGanzzahl(std::int64_t ganz) {
        return Festkomma(Produkt(ganz, kEinheit));
    }
    /// Half to even at the fourth decimal.
    static Festkomma AusDouble(double wert) {
        return Festkomma(Rundung::half_even(wert * static_cast<double>(kEinheit)));
    }

    [[nodiscard]] constexpr std::int64_t Rohwert() const { return m_rohwert; }
    [[nodiscard]] constexpr double AlsDouble() const {
        return static_cast<double>(m_rohwert) / static_cast<double>(kEinheit);
    }
    /// Cut towards zero.
    [[nodiscard]] constexpr std::int64_t GanzerTeil() const { return m_rohwert / kEinheit; }

    friend constexpr Festkomma operator+(Festkomma a, Festkomma b) {
        std::int64_t summe = 0;
        if (__builtin_add_overflow(a.m_rohwert, b.m_rohwert, &summe)) [[unlikely]] {
            return Ende(a.m_rohwert < 0);
        }
        return Festkomma(summe);
    }
    friend constexpr Festkomma operator-(Festkomma a, Festkomma b) {
        std::int64_t differenz = 0;
        if (__builtin_sub_overflow(a.m_rohwert, b.m_rohwert, &differenz)) [[unlikely]] {
            return Ende(a.m_rohwert < 0);
        }
        return Festkomma(differenz);
    }
    friend constexpr Festkomma operator*(Festkomma a, std::int64_t faktor) {
        return Festkomma(Produkt(a.m_rohwert, faktor));
    }
    friend constexpr auto operator<=>(Festkomma, Festkomma) = default;

  private:
    constexpr explicit Festkomma(std::int64_t rohwert) : m_rohwert(rohwert) {}

    static constexpr Festkomma Ende(bool negativ) {
        return Festkomma(negativ ? std::numeric_limits<std::int64_t>::min()
                                 : std::numeric_limits<std::int64_t>::max());
    }
    static constexpr std::int64_t Produkt(std::int64_t a, std::int64_t b) {
        std::int64_t produkt = 0;
        if (__builtin_mul_overflow(a, b, &produkt)) [[unlikely]] {
            return Ende((a < 0) != (b < 0)).m_rohwert;
        }
        return produkt;
    }

    std::int64_t m_rohwert = 0;
};

/// Plain decimal text with a decimal comma and up to four decimals: "440,6278", "500", "-0,5".
[[nodiscard]] std::string Dezimaltext(Festkomma wert);

/// All four decimals behind a decimal point, for machines: "440.6278".
[[nodiscard]] std::string VierStellenText(Festkomma wert);

}  // namespace tarvelin
