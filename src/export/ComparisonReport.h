// The comparison of two plans as text and as JSON.
#pragma once

#include <ostream>
#include <string>

#include "document/PlanRun.h"

namespace tarvelin {

/// `hasRun` has to hold for both, here and below.
void WriteComparison(std::ostream& stream, const PlanRun& a, const PlanRun& b);

[[nodiscard]] std::string ComparisonJson(const PlanRun& a, const PlanRun& b);

}  // namespace tarvelin
