// Where the energy comes from, and how it grows with the level.
#pragma once

#include "util/FixedPoint.h"

namespace tarvelin {

/// 1.1^`stufe`, by which yields and needs of energy grow.
[[nodiscard]] double HochEinsKommaEins(Byte stufe);

/// Energy that the solar power plant delivers at a level, a whole number.
[[nodiscard]] FixedPoint Kraftwerksertrag(Byte stufe);

/// Energy that a number of satellites delivers at the planet's temperature in degrees, a whole
/// number; negative in great cold.
[[nodiscard]] FixedPoint Satellitenertrag(Byte anzahl, Integer temperatur);

}  // namespace tarvelin
