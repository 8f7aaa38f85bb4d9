// What the steps of an item cost.
#pragma once

#include <cstdint>

#include "util/Ganzzahl.h"

namespace tarvelin {

/// Whole amounts of the three resources. They grow beyond 64 bits, so they are doubles.
struct Kosten {
    double Metall = 0;
    double Kristall = 0;
    double Deuterium = 0;

    friend bool operator==(const Kosten&, const Kosten&) = default;
};

/// The laws by which costs grow with the level.
enum class Wachstum : std::uint8_t {
    /// The price of a unit is always the same.
    Keines,
    /// 2^level, the level being that before the step.
    Doppelt,
    /// 1.5^level and 1.6^level, the level being that which the step reaches; cut to whole amounts.
    HochAnderthalb,
    HochEinsKommaSechs,
};

/// The prices of an item.
struct Preisgesetz {
    Kosten Basis;
    Wachstum Nach = Wachstum::Keines;

    /// Of the step from `stufe` to the next one.
    [[nodiscard]] Kosten Preis(Long stufe) const;
};

}  // namespace tarvelin
