// How costs grow with the level.
#pragma once

#include <cstdint>

namespace tarvelin {

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

/// By which the basic costs of an item are multiplied for the step from `stufe`.
[[nodiscard]] double Kostenfaktor(Wachstum nach, double stufe);

}  // namespace tarvelin
