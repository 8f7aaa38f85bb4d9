// What one step of an item costs.
#pragma once

#include <array>
#include <cstddef>

#include "util/Ganzzahl.h"

namespace tarvelin {

/// Whole amounts of the three resources. They grow beyond 64 bits, so they are doubles.
struct Kosten {
    double Metall = 0;
    double Kristall = 0;
    double Deuterium = 0;

    friend bool operator==(const Kosten&, const Kosten&) = default;
};

/// Highest level for which costs and powers are worked out beforehand; a plan of 254 rows stays
/// below it.
inline constexpr std::size_t kTabellenStufen = 256;

/// The values of a function of the level, worked out once: a look-up gives the number that the
/// function gives.
template <class T>
class Stufentabelle {
  public:
    using Formel = T (*)(Long stufe);

    explicit Stufentabelle(Formel formel) : m_formel(formel) {
        for (std::size_t i = 0; i < kTabellenStufen; ++i) {
            m_werte[i] = formel(static_cast<Long>(i));
        }
    }

    [[nodiscard]] T operator()(Long stufe) const {
        const auto i = static_cast<std::size_t>(stufe);
        return i < kTabellenStufen ? m_werte[i] : m_formel(stufe);
    }

  private:
    Formel m_formel;
    std::array<T, kTabellenStufen> m_werte{};
};

/// Price of the step from `stufe` to the next one for what grows by the factor `wachstum`; each
/// amount is cut to a whole one. The exponent is the level that the step reaches.
[[nodiscard]] Kosten WachsendeKosten(const Kosten& basis, double wachstum, Long stufe);

/// Price of the step from `stufe` to the next one for what doubles with each level. The exponent
/// is the level before the step.
[[nodiscard]] Kosten VerdoppelndeKosten(const Kosten& basis, Long stufe);

}  // namespace tarvelin
