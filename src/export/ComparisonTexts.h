// A comparison as rows of four texts: a name, the values in A and B, and B minus A; empty where
// there is no value.
#pragma once

#include "export/TextTable.h"
#include "simulation/Comparison.h"

namespace tarvelin {

/// Duration, points, stocks, sittings, the idle times of the queues.
[[nodiscard]] TextTable SummaryTexts(const Comparison& comparison);

/// The orders that start at different moments, or in one run only.
[[nodiscard]] TextTable OrderDifferences(const Comparison& comparison);

}  // namespace tarvelin
