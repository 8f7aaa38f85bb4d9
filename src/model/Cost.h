// What the steps of an item cost.
#pragma once

#include <string>

#include "model/ItemId.h"
#include "model/Resource.h"
#include "util/FixedPoint.h"

namespace tarvelin {

/// The price of the step from `level` to the next.
[[nodiscard]] const Cost& CostOf(ItemId item, Byte level);

[[nodiscard]] inline double GetMetallKosten(ItemId item, Byte level) {
    return CostOf(item, level)[Resource::Metall];
}
[[nodiscard]] inline double GetKristallKosten(ItemId item, Byte level) {
    return CostOf(item, level)[Resource::Kristall];
}
[[nodiscard]] inline double GetDeuteriumKosten(ItemId item, Byte level) {
    return CostOf(item, level)[Resource::Deuterium];
}

/// The same in fixed point, as it is deducted from the stocks.
[[nodiscard]] const PerResource<FixedPoint>& StockDeduction(ItemId item, Byte level);

/// "Kosten:  Met: 60  Kris: 15  Deut: 0", the price of the step from `extStufe`.
[[nodiscard]] std::string GetUpgradecostString(ItemId item, Byte extStufe);

}  // namespace tarvelin
