// Functions of the level, worked out beforehand.
#pragma once

#include <array>
#include <cstddef>

#include "util/Ganzzahl.h"

namespace tarvelin {

/// The values of a function of the level, worked out once: a look-up gives the very number that the
/// function gives. Other levels than those of the table are worked out each time.
class Stufentabelle {
  public:
    using Formel = double (*)(Long stufe);

    explicit Stufentabelle(Formel formel) : m_formel(formel) {
        for (std::size_t i = 0; i < kStufen; ++i) {
            m_werte[i] = formel(static_cast<Long>(i));
        }
    }

    [[nodiscard]] double operator()(Long stufe) const {
        const auto i = static_cast<std::size_t>(stufe);
        return i < kStufen ? m_werte[i] : m_formel(stufe);
    }

  private:
    /// A plan of 254 rows stays below it.
    static constexpr std::size_t kStufen = 256;

    Formel m_formel;
    std::array<double, kStufen> m_werte{};
};

}  // namespace tarvelin
