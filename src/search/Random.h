// Random numbers that are the same on every platform.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace tarvelin {

/// The standard library's engines are specified exactly; its distributions aren't.
class Random {
  public:
    explicit Random(std::uint64_t seed) : m_source(seed) {}

    /// From 0 to `count` - 1; `count` is above 0 and below 2^32.
    std::size_t Below(std::size_t count) {
        return static_cast<std::size_t>(((m_source() >> 32U) * count) >> 32U);
    }
    bool OneIn(std::size_t n) { return Below(n) == 0; }
    /// Above 0, at most 1.
    double UnitInterval() {
        constexpr double kStep = 1.0 / 9007199254740992.0;
        return static_cast<double>((m_source() >> 11U) + 1) * kStep;
    }

  private:
    std::mt19937_64 m_source;
};

}  // namespace tarvelin
