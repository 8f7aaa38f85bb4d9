// Tooltips of the item pictures.
#include "plan/Hovertexte.h"

#include "plan/ItemCode.h"
#include "plan/Regeln.h"
#include "util/Zahlentext.h"

namespace tarvelin {

namespace {

/// What the step from `stufe` to the next level needs, at full production.
std::string Bedarfstext(const cMine& mine, Long stufe) {
    const double bedarf = mine.GetEnergieVerbrauch(stufe + 1) - mine.GetEnergieVerbrauch(stufe);
    return "  |  Energie: -" + Ganztext(bedarf);
}

std::string Ertragstext(Festkomma ertrag) {
    return "  |  Energie: +" + Dezimaltext(ertrag);
}

std::string Energieanhang(ItemId item, Long stufe, const Startplanet& planet) {
    switch (ZeileVon(item).Energie) {
        case Energietext::Ohne:
            break;
        case Energietext::Bedarf:
            return Bedarfstext(dynamic_cast<const cMine&>(planet.Item(item)), stufe);
        case Energietext::Stufenertrag:
            return Ertragstext(planet.SKW.GetProduktion(stufe + 1) -
                               planet.SKW.GetProduktion(stufe));
        case Energietext::Stueckertrag:
            return Ertragstext(planet.Solsats.GetProduktion(1));
    }
    return "";
}

}  // namespace

Hoverinfo HoverInfo(ItemId item, const Bauliste& bauliste, const Startplanet& planet) {
    if (const auto absage = Absage(item, bauliste)) {
        return {.DragOffen = false, .Tooltip = std::string(*absage)};
    }
    const Long stufe = bauliste.ListStufe(item);
    return {.DragOffen = true,
            .Tooltip = " " + std::string(ZeileVon(item).Hovername) + "  |  " +
                       planet.Item(item).GetUpgradecostString(stufe) +
                       Energieanhang(item, stufe, planet)};
}

}  // namespace tarvelin
