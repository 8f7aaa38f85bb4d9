// Moments on the clock of a run.
#pragma once

#include <compare>
#include <cstdint>
#include <limits>

#include "util/Integers.h"

namespace tarvelin {

/// Seconds of simulated time since the start of the universe; held within the range of Long.
class Moment {
  public:
    constexpr Moment() = default;
    constexpr explicit Moment(Long sekunden) : m_sekunden(sekunden) {}

    /// The end of the clock, at which all that would be later stands.
    [[nodiscard]] static constexpr Moment Letzter() {
        return Moment(std::numeric_limits<Long>::max());
    }

    [[nodiscard]] constexpr Long Sekunden() const { return m_sekunden; }

    friend constexpr Moment operator+(Moment moment, std::int64_t sekunden) {
        return Moment(LongSum(moment.m_sekunden, sekunden));
    }
    /// Seconds from `b` to `a`.
    friend constexpr Long operator-(Moment a, Moment b) {
        return LongSum(a.m_sekunden, -std::int64_t{b.m_sekunden});
    }
    friend constexpr auto operator<=>(Moment, Moment) = default;

  private:
    Long m_sekunden = 0;
};

}  // namespace tarvelin
