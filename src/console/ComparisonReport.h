// Two plans beside each other, as text and as JSON.
#pragma once

#include <ostream>
#include <string>

#include "persistence/PlanRun.h"

namespace tarvelin {

/// Both have been run.
void SchreibeVergleich(std::ostream& strom, const Planlauf& a, const Planlauf& b);

/// One object.
[[nodiscard]] std::string VergleichsJson(const Planlauf& a, const Planlauf& b);

}  // namespace tarvelin
