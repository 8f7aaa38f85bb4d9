// Where the energy comes from, and how it grows with the level.
#pragma once

#include "model/ItemId.h"
#include "util/FixedPoint.h"

namespace tarvelin {

/// 1.1^`level`: how yields and energy needs grow.
[[nodiscard]] double OnePointOneToThe(Byte level);

/// Energy that a source delivers at a level, or that many satellites deliver together, a whole
/// number; 0 for an item that is no source. Satellites depend on the planet's temperature, in
/// degrees, and are negative in great cold.
[[nodiscard]] FixedPoint GetProduktion(ItemId source, Byte ExterneStufe, Integer Temperatur);

}  // namespace tarvelin
