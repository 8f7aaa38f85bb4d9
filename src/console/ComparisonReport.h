// Two plans beside each other, as text and as JSON.
#pragma once

#include <ostream>
#include <string>

#include "persistence/PlanRun.h"

namespace tarvelin {

/// Both have been run.
void WriteComparison(std::ostream& stream, const PlanRun& a, const PlanRun& b);

/// One object.
[[nodiscard]] std::string ComparisonJson(const PlanRun& a, const PlanRun& b);

}  // namespace tarvelin
