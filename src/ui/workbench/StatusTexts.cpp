// Words for moments and states.
#include "ui/workbench/StatusTexts.h"

#include <algorithm>
#include <iterator>

#include "model/ItemTable.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

std::string Vorratstext(const RunTrace& ablauf, SimTime moment) {
    struct Name {
        Resource Was;
        const char* Text;
    };
    const HistoryPoint& punkt = PointAt(ablauf.curve, moment);
    const auto vorrat = StockAfter(punkt, std::max(Long{0}, moment - punkt.time));
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

std::string Stufentext(const HistoryPoint& punkt) {
    std::string text;
    for (const ItemRow& zeile : ItemTable()) {
        if (const Byte stufe = punkt.Stufe[zeile.item]; stufe > 0) {
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

std::string Standtext(const RunTrace& ablauf, SimTime moment) {
    return Zeittext(ablauf.conditions.WallClock(moment)) +
           "   Spielzeit: " + TimeSpanText(moment.Seconds()) + Vorratstext(ablauf, moment) + "\n" +
           Stufentext(PointAt(ablauf.curve, moment));
}

std::optional<std::string> NaechsterAuftrag(const RunTrace& ablauf, DateTime jetzt) {
    const RunConditions& bedingungen = ablauf.conditions;
    if (jetzt < bedingungen.StartDate || jetzt > bedingungen.WallClock(ablauf.Duration())) {
        return std::nullopt;
    }
    const auto naechster = std::ranges::find_if(ablauf.starts, [&](const StartEvent& start) {
        return bedingungen.WallClock(start.start) >= jetzt;
    });
    if (naechster == ablauf.starts.end()) {
        return "alle Aufträge sind gegeben";
    }
    const DateTime um = bedingungen.WallClock(naechster->start);
    return OrderText(*naechster) + " um " + TimeOfDayText(um) + ", in " + TimeSpanText(um - jetzt);
}

std::string Meldungszeile(const RunTrace& ablauf) {
    std::vector<std::string> texte;
    if (ablauf.end.IsAtEndOfClock()) {
        texte.push_back(BeyondClockText());
    }
    std::ranges::transform(ablauf.messages, std::back_inserter(texte), &Message::text);
    std::string text = texte.empty() ? "" : texte.front();
    if (texte.size() == 2) {
        text += "\n" + texte.back();
    } else if (texte.size() > 2) {
        text += "\n... und " + std::to_string(texte.size() - 1) + " weitere";
    }
    return text;
}

}  // namespace tarvelin
