// Tooltips of the item pictures.
#include "plan/HoverInfo.h"

#include "model/Cost.h"
#include "model/Energy.h"
#include "model/ItemTable.h"
#include "model/Mines.h"
#include "plan/Rules.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

/// The energy that the step from `level` needs in addition, at full production.
std::string NeedText(Resource mine, Byte level) {
    const auto needOf = [&](int reached) {
        return GetEnergieVerbrauch(mine, Saturate<Byte>(reached), kFullFactor);
    };
    return "  |  Energie: -" + WholeText(needOf(level + 1) - needOf(level));
}

std::string SupplyText(FixedPoint production) {
    return "  |  Energie: +" + DecimalText(production);
}

std::string EnergySuffix(ItemId item, Byte level, const RunConditions& conditions) {
    const auto production = [&](Byte count) {
        return GetProduktion(item, count, conditions.Temperatur);
    };
    switch (RowOf(item).traits.energyRole) {
        case EnergyRole::None:
            break;
        case EnergyRole::Mine:
            return NeedText(ResourceOf(item), level);
        case EnergyRole::PowerPlant:
            return SupplyText(production(Saturate<Byte>(level + 1)) - production(level));
        case EnergyRole::Satellite:
            return SupplyText(production(1));
    }
    return "";
}

}  // namespace

HoverInfo HoverInfoFor(ItemId item, const OrderList& list, const RunConditions& conditions) {
    if (const auto refusal = Refusal(item, list)) {
        return {.dragEnabled = false, .tooltip = std::string(*refusal)};
    }
    const Byte level = list.ListStufe(item);
    return {.dragEnabled = true,
            .tooltip = " " + std::string(RowOf(item).HoverName()) + "  |  " +
                       GetUpgradecostString(item, level) + EnergySuffix(item, level, conditions)};
}

}  // namespace tarvelin
