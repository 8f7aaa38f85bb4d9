// Moments on the clock of a run.
#pragma once

#include <compare>
#include <cstdint>
#include <limits>

#include "util/Integers.h"

namespace tarvelin {

/// Seconds of simulated time since the start of the universe; saturates at the range of Long.
class SimTime {
  public:
    constexpr SimTime() = default;
    constexpr explicit SimTime(Long seconds) : m_seconds(seconds) {}

    /// The end of the clock, where all later moments end up.
    [[nodiscard]] static constexpr SimTime Last() {
        return SimTime(std::numeric_limits<Long>::max());
    }

    [[nodiscard]] constexpr Long Seconds() const { return m_seconds; }

    friend constexpr SimTime operator+(SimTime moment, std::int64_t seconds) {
        return SimTime(LongSum(moment.m_seconds, seconds));
    }
    /// Seconds from `begin` to `end`.
    friend constexpr Long operator-(SimTime end, SimTime begin) {
        return LongSum(end.m_seconds, -std::int64_t{begin.m_seconds});
    }
    friend constexpr auto operator<=>(SimTime, SimTime) = default;

  private:
    Long m_seconds = 0;
};

}  // namespace tarvelin
