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
std::string Bedarfstext(Rohstoff mine, Byte stufe) {
    const auto bedarf = [&](int s) {
        return EnergiebedarfDerListe(mine, Saturate<Byte>(s), kVollerFaktor);
    };
    return "  |  Energie: -" + WholeText(bedarf(stufe + 1) - bedarf(stufe));
}

std::string Ertragstext(FixedPoint ertrag) {
    return "  |  Energie: +" + DecimalText(ertrag);
}

std::string Energieanhang(ItemId item, Byte stufe, const Startbedingungen& bedingungen) {
    switch (ZeileVon(item).Besonders.Energie) {
        case Energierolle::Keine:
            break;
        case Energierolle::Mine:
            return Bedarfstext(RohstoffDer(item), stufe);
        case Energierolle::Kraftwerk:
            return Ertragstext(Kraftwerksertrag(Saturate<Byte>(stufe + 1)) -
                               Kraftwerksertrag(stufe));
        case Energierolle::Satellit:
            return Ertragstext(Satellitenertrag(1, bedingungen.Temperatur));
    }
    return "";
}

}  // namespace

Hoverinfo HoverInfo(ItemId item, const Auftragsliste& liste, const Startbedingungen& bedingungen) {
    if (const auto absage = Absage(item, liste)) {
        return {.DragOffen = false, .Tooltip = std::string(*absage)};
    }
    const Byte stufe = liste.ListStufe(item);
    return {.DragOffen = true,
            .Tooltip = " " + std::string(ZeileVon(item).Hovername()) + "  |  " +
                       Kostentext(Preis(item, stufe)) + Energieanhang(item, stufe, bedingungen)};
}

}  // namespace tarvelin
