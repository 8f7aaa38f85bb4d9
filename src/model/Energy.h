// Where the energy comes from, and how it grows with the level.
#pragma once

#include "util/FixedPoint.h"

namespace tarvelin {

/// 1.1^`level`, by which yields and needs of energy grow.
[[nodiscard]] double OnePointOneToThe(Byte level);

/// Energy that the solar power plant delivers at a level, a whole number.
[[nodiscard]] FixedPoint PowerPlantProduction(Byte level);

/// Energy that a number of satellites delivers at the planet's temperature in degrees, a whole
/// number; negative in great cold.
[[nodiscard]] FixedPoint SatelliteProduction(Byte count, Integer temperature);

}  // namespace tarvelin
