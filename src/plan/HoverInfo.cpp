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

/// What the step from `stufe` to the next level needs, at full production.
std::string Bedarfstext(Resource mine, Byte stufe) {
    const auto bedarf = [&](int s) {
        return ListEnergieVerbrauch(mine, Saturate<Byte>(s), kFullFactor);
    };
    return "  |  Energie: -" + WholeText(bedarf(stufe + 1) - bedarf(stufe));
}

std::string Ertragstext(FixedPoint ertrag) {
    return "  |  Energie: +" + DecimalText(ertrag);
}

std::string Energieanhang(ItemId item, Byte stufe, const RunConditions& bedingungen) {
    switch (RowOf(item).traits.energyRole) {
        case EnergyRole::None:
            break;
        case EnergyRole::Mine:
            return Bedarfstext(ResourceOf(item), stufe);
        case EnergyRole::PowerPlant:
            return Ertragstext(PowerPlantProduction(Saturate<Byte>(stufe + 1)) -
                               PowerPlantProduction(stufe));
        case EnergyRole::Satellite:
            return Ertragstext(SatelliteProduction(1, bedingungen.Temperatur));
    }
    return "";
}

}  // namespace

Hoverinfo HoverInfo(ItemId item, const Auftragsliste& liste, const RunConditions& bedingungen) {
    if (const auto absage = Absage(item, liste)) {
        return {.DragOffen = false, .Tooltip = std::string(*absage)};
    }
    const Byte stufe = liste.ListStufe(item);
    return {.DragOffen = true,
            .Tooltip = " " + std::string(RowOf(item).HoverName()) + "  |  " +
                       GetUpgradecostString(CostOf(item, stufe)) +
                       Energieanhang(item, stufe, bedingungen)};
}

}  // namespace tarvelin
