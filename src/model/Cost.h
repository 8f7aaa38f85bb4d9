// What the steps of an item cost.
#pragma once

#include <string>

#include "model/ItemId.h"
#include "model/Resource.h"
#include "util/FixedPoint.h"

namespace tarvelin {

/// The price of the step from `stufe`, 0 or more, to the next one.
[[nodiscard]] const Kosten& Preis(ItemId item, Byte stufe);

/// The same as it goes off the stocks.
[[nodiscard]] const JeRohstoff<FixedPoint>& Abzug(ItemId item, Byte stufe);

/// "Kosten:  Met: 60  Kris: 15  Deut: 0".
[[nodiscard]] std::string Kostentext(const Kosten& kosten);

}  // namespace tarvelin
