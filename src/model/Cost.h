// What the steps of an item cost.
#pragma once

#include <string>

#include "model/ItemId.h"
#include "model/Resource.h"
#include "util/FixedPoint.h"

namespace tarvelin {

/// The price of the step from `level`, 0 or more, to the next one.
[[nodiscard]] const Cost& CostOf(ItemId item, Byte level);

/// The same as it goes off the stocks.
[[nodiscard]] const PerResource<FixedPoint>& StockDeduction(ItemId item, Byte level);

/// "Kosten:  Met: 60  Kris: 15  Deut: 0".
[[nodiscard]] std::string GetUpgradecostString(const Cost& cost);

}  // namespace tarvelin
