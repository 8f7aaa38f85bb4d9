// The comparison of two plans as text and as JSON.
#pragma once

#include <string>

#include "document/PlanRun.h"

namespace tarvelin {

/// `hasRun` has to hold for both, here and below.
[[nodiscard]] std::string ComparisonText(const PlanRun& a, const PlanRun& b);

[[nodiscard]] std::string ComparisonJson(const PlanRun& a, const PlanRun& b);

}  // namespace tarvelin
