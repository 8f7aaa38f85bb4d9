// The growth of yields and energy with the level, common to mines and power plant.
#pragma once

#include "util/Ganzzahl.h"

namespace tarvelin {

/// 1.1^`stufe`.
[[nodiscard]] double HochEinsKommaEins(Long stufe);

}  // namespace tarvelin
