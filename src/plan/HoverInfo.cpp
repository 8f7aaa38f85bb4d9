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

std::string EnergySuffix(ItemId item, Byte level, const RunConditions& conditions) {
    const double energy = EnergyOfStep(item, level, conditions);
    switch (RowOf(item).traits.energyRole) {
        case EnergyRole::None:
            return "";
        case EnergyRole::Mine:
            return "  |  Energie: -" + WholeText(-energy);
        case EnergyRole::PowerPlant:
        case EnergyRole::Satellite:
            break;
    }
    return "  |  Energie: +" + WholeText(energy);
}

}  // namespace

double EnergyOfStep(ItemId item, Byte level, const RunConditions& conditions) {
    const Byte next = Saturate<Byte>(level + 1);
    const auto production = [&](Byte count) {
        return GetProduktion(item, count, conditions.Temperatur);
    };
    switch (RowOf(item).traits.energyRole) {
        case EnergyRole::None:
            break;
        case EnergyRole::Mine:
            return GetEnergieVerbrauch(ResourceOf(item), level, kFullFactor) -
                   GetEnergieVerbrauch(ResourceOf(item), next, kFullFactor);
        case EnergyRole::PowerPlant:
            return (production(next) - production(level)).ToDouble();
        case EnergyRole::Satellite:
            return production(1).ToDouble();
    }
    return 0;
}

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
