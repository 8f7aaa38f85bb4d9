// Two plans beside each other, as text and as JSON.
#pragma once

#include <ostream>
#include <string>

#include "persistence/PlanRun.h"

namespace tarvelin {

/// Both have been run.
void SchreibeVergleich(std::ostream& strom, const PlanRun& a, const PlanRun& b);

/// One object.
[[nodiscard]] std::string VergleichsJson(const PlanRun& a, const PlanRun& b);

}  // namespace tarvelin
