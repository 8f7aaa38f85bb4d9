// Words for moments and states.
#include "ui/workbench/StatusTexts.h"

#include <algorithm>
#include <iterator>

#include "model/ItemTable.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

std::string Vorratstext(const Ablauf& ablauf, SimTime moment) {
    struct Name {
        Resource Was;
        const char* Text;
    };
    const Verlaufspunkt& punkt = PunktUm(ablauf.Kurve, moment);
    const auto vorrat = VorratNach(punkt, std::max(Long{0}, moment - punkt.Zeit));
    std::string text;
    for (const auto& [was, name] :
         {Name{Resource::Metall, "Metall"}, Name{Resource::Kristall, "Kristall"},
          Name{Resource::Deuterium, "Deuterium"}}) {
        text += std::string("   ") + name + ": " + std::to_string(vorrat[was].WholePart()) + " (" +
                DecimalText(punkt.ProStunde[was]) + "/h)";
    }
    const Long frei = LongSum(punkt.EnergieProduktion, -std::int64_t{punkt.EnergieVerbrauch});
    return text + "   Energie: " + std::to_string(frei) + " / " +
           std::to_string(punkt.EnergieProduktion);
}

std::string Stufentext(const Verlaufspunkt& punkt) {
    std::string text;
    for (const ItemRow& zeile : ItemTable()) {
        if (const Byte stufe = punkt.Stufen[zeile.item]; stufe > 0) {
            text +=
                (text.empty() ? "" : ", ") + std::string(zeile.name) + " " + std::to_string(stufe);
        }
    }
    return text;
}

}  // namespace

std::string Zeittext(DateTime zeitpunkt) {
    const std::string datum = DateText(zeitpunkt);
    return std::string(WeekdayShort(zeitpunkt)) + " " + datum.substr(0, datum.rfind('.') + 1) +
           " " + TimeOfDayText(zeitpunkt);
}

std::string Standtext(const Ablauf& ablauf, SimTime moment) {
    return Zeittext(ablauf.Bedingungen.WallClock(moment)) +
           "   Spielzeit: " + Spannentext(moment.Seconds()) + Vorratstext(ablauf, moment) + "\n" +
           Stufentext(PunktUm(ablauf.Kurve, moment));
}

std::optional<std::string> NaechsterAuftrag(const Ablauf& ablauf, DateTime jetzt) {
    const RunConditions& bedingungen = ablauf.Bedingungen;
    if (jetzt < bedingungen.StartDate || jetzt > bedingungen.WallClock(ablauf.Dauer())) {
        return std::nullopt;
    }
    const auto naechster = std::ranges::find_if(ablauf.Starts, [&](const Startereignis& start) {
        return bedingungen.WallClock(start.Start) >= jetzt;
    });
    if (naechster == ablauf.Starts.end()) {
        return "alle Aufträge sind gegeben";
    }
    const DateTime um = bedingungen.WallClock(naechster->Start);
    return Auftragstext(*naechster) + " um " + TimeOfDayText(um) + ", in " +
           Spannentext(um - jetzt);
}

std::string Meldungszeile(const Ablauf& ablauf) {
    std::vector<std::string> texte;
    if (ablauf.Ende.IsAtEndOfClock()) {
        texte.push_back(UeberDieUhrText());
    }
    std::ranges::transform(ablauf.Meldungen, std::back_inserter(texte), &Message::text);
    std::string text = texte.empty() ? "" : texte.front();
    if (texte.size() == 2) {
        text += "\n" + texte.back();
    } else if (texte.size() > 2) {
        text += "\n... und " + std::to_string(texte.size() - 1) + " weitere";
    }
    return text;
}

}  // namespace tarvelin
