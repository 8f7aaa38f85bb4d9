// Energy sources, and the growth that they share with the mines.
#pragma once

#include "model/ItemId.h"
#include "util/FixedPoint.h"

namespace tarvelin {

/// 1.1^`level`: how yields and energy needs grow.
[[nodiscard]] double OnePointOneToThe(Byte level);

/// Energy that a power plant of this level or this many satellites deliver, a whole number; 0 for
/// any other item. Satellites depend on the planet's temperature, in degrees; in great cold they
/// deliver a negative amount.
[[nodiscard]] FixedPoint GetProduktion(ItemId source, Byte ExterneStufe, Integer Temperatur);

}  // namespace tarvelin
