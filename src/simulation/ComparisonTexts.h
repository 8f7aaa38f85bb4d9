// A comparison in words, for the window and the console.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "simulation/Comparison.h"

namespace tarvelin {

/// A name, what stands in A and in B, and by how much B has more. Empty where there is nothing.
using ComparisonText = std::array<std::string, 4>;

/// Duration, points, stocks, sittings, the idle times of the queues.
[[nodiscard]] std::vector<ComparisonText> SummaryTexts(const Comparison& comparison);

/// The orders that don't start at the same moment.
[[nodiscard]] std::vector<ComparisonText> OrderDifferences(const Comparison& comparison);

}  // namespace tarvelin
