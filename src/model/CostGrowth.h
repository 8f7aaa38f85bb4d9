// How costs grow with the level.
#pragma once

#include <cstdint>

namespace tarvelin {

enum class CostGrowth : std::uint8_t {
    /// The price of a unit never changes.
    None,
    /// 2^level, where the level is the one before the step.
    Doubling,
    /// 1.5^level and 1.6^level, where the level is the one that the step reaches.
    OnePointFive,
    OnePointSix,
};

/// Multiplies the base cost of an item for the step from `level`.
[[nodiscard]] double CostFactor(CostGrowth growth, double level);

}  // namespace tarvelin
