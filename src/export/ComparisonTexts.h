// A comparison in words, for the window and the console.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "simulation/Comparison.h"

namespace tarvelin {

/// A name, the values in A and B, and B minus A; empty where there is no value.
using ComparisonText = std::array<std::string, 4>;

/// Duration, points, stocks, sittings, the idle times of the queues.
[[nodiscard]] std::vector<ComparisonText> SummaryTexts(const Comparison& comparison);

/// The orders that start at different moments, or in one run only.
[[nodiscard]] std::vector<ComparisonText> OrderDifferences(const Comparison& comparison);

}  // namespace tarvelin
