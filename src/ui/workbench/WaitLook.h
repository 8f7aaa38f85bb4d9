// How a wait looks: one look for each cause.
#pragma once

#include "model/Wait.h"
#include "ui/workbench/WorkbenchColors.h"

namespace tarvelin {

/// The color of the strip that stands for a wait.
[[nodiscard]] Color StripColor(const Delay& delay);

}  // namespace tarvelin
