// How costs grow with the level.
#pragma once

#include <cstdint>

namespace tarvelin {

/// The laws by which costs grow with the level.
enum class CostGrowth : std::uint8_t {
    /// The price of a unit is always the same.
    None,
    /// 2^level, the level being that before the step.
    Doubling,
    /// 1.5^level and 1.6^level, the level being that which the step reaches; cut to whole amounts.
    OnePointFive,
    OnePointSix,
};

/// By which the basic costs of an item are multiplied for the step from `level`.
[[nodiscard]] double CostFactor(CostGrowth growth, double level);

}  // namespace tarvelin
