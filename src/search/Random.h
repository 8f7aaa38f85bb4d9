// Chance that is the same on every machine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace tarvelin {

/// The distributions of the standard library may differ from one to the other; its engine doesn't.
class Zufall {
  public:
    explicit Zufall(std::uint64_t saat) : m_quelle(saat) {}

    /// From 0 to `anzahl` - 1; `anzahl` is above 0 and below 2^32.
    std::size_t Bis(std::size_t anzahl) {
        return static_cast<std::size_t>(((m_quelle() >> 32U) * anzahl) >> 32U);
    }
    bool Eins(std::size_t von) { return Bis(von) == 0; }
    /// Above 0, at most 1.
    double Anteil() {
        constexpr double kJe = 1.0 / 9007199254740992.0;
        return static_cast<double>((m_quelle() >> 11U) + 1) * kJe;
    }

  private:
    std::mt19937_64 m_quelle;
};

}  // namespace tarvelin
