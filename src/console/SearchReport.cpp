// The report of a search.
#include "console/SearchReport.h"

#include <cstdlib>
#include <nlohmann/json.hpp>

#include "console/RunReport.h"
#include "console/TextTable.h"
#include "search/SearchTexts.h"
#include "util/Nuetzliches.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

using nlohmann::json;

std::string Dauer(Long sekunden) {
    return FormatDuration(sekunden, "s", "dd(0)hh:mm:ss", "d");
}

json AlsJson(const Solution& fund, const GameState& stand) {
    json raten = json::array();
    for (const FixedPoint rate : stand.ProStunde) {
        raten.push_back(rate.WholePart());
    }
    return {{"Sekunden", fund.score.duration},
            {"Dauer", Dauer(fund.score.duration)},
            {"Zeilen", fund.orders.size()},
            {"Sitzungen", fund.score.sittings},
            {"ProStunde", raten}};
}

std::string Fundtext(const Solution& fund) {
    return Dauer(fund.score.duration) + "   " +
           CountText(static_cast<std::size_t>(fund.score.sittings), "Sitzung", "Sitzungen") +
           "   " + CountText(fund.orders.size(), "Zeile", "Zeilen");
}

/// A list for fewer sittings may take longer.
std::string Gewinntext(Long gewinn) {
    return (gewinn < 0 ? "-" : "") + Dauer(std::abs(gewinn));
}

void SchreibeZeile(std::ostream& strom, const std::string& name, const std::string& text) {
    constexpr std::size_t kBreite = 13;
    strom << Aufgefuellt(name + ":", kBreite, false) << text << '\n';
}

std::string Prozent(Long gewinn, Long von) {
    constexpr double kHundert = 100;
    return DecimalText(von == 0 ? 0 : kHundert * gewinn / von, 1) + " %";
}

}  // namespace

void SchreibeSuche(std::ostream& strom, const Suchbericht& bericht) {
    const Solution& nachher = *bericht.Ergebnis.best;
    const auto& vorher = bericht.Aufgabe.before;
    SchreibeZeile(strom, "Vorher",
                  vorher ? Fundtext(*vorher) : "der Plan endet nie oder verfehlt das Ziel");
    SchreibeZeile(strom, "Nachher", Fundtext(nachher));
    if (vorher) {
        const Long gewinn = vorher->score.duration - nachher.score.duration;
        SchreibeZeile(strom, "Gewinn",
                      Gewinntext(gewinn) + " (" + Prozent(gewinn, vorher->score.duration) + ")");
    }
    const OrderList& alte = bericht.Plan.plan.LV_Bauliste.Orders();
    const OrderList& neue = bericht.Neuer.plan.LV_Bauliste.Orders();
    for (const auto& [name, text] : {std::pair("Kommt dazu", SurplusInWords(neue, alte)),
                                     std::pair("Entfällt", SurplusInWords(alte, neue))}) {
        if (!text.empty()) {
            SchreibeZeile(strom, name, text);
        }
    }
    if (bericht.Plan.hasRun) {
        SchreibeZeile(strom, "Je Stunde", RatesText(bericht.Plan.run.state) + " (vorher)");
    }
    SchreibeZeile(strom, "Je Stunde", RatesText(bericht.Neuer.run.state) + " (nachher)");
    if (const auto& pause = bericht.Aufgabe.pause) {
        SchreibeZeile(strom, "Pause", pause->Startzeit + " bis " + pause->Endzeit);
    }
    SchreibeZeile(
        strom, "Versuche",
        std::to_string(bericht.Ergebnis.tries) + "   Saat: " + std::to_string(bericht.Saat));
    strom << '\n';
    SchreibeText(strom, bericht.Neuer);
}

std::string SuchJson(const Suchbericht& bericht) {
    const auto& vorher = bericht.Aufgabe.before;
    json tags = json::array();
    for (const Order& order : bericht.Ergebnis.best->orders) {
        tags.push_back(order.Tag());
    }
    const OrderList& alte = bericht.Plan.plan.LV_Bauliste.Orders();
    const OrderList& neue = bericht.Neuer.plan.LV_Bauliste.Orders();
    json objekt{{"Vorher", vorher ? AlsJson(*vorher, bericht.Plan.run.state) : json()},
                {"Nachher", AlsJson(*bericht.Ergebnis.best, bericht.Neuer.run.state)},
                {"Versuche", bericht.Ergebnis.tries},
                {"Saat", bericht.Saat},
                {"Hinzu", SurplusText(neue, alte)},
                {"Weg", SurplusText(alte, neue)},
                {"Bauliste", tags}};
    if (const auto& pause = bericht.Aufgabe.pause) {
        objekt["Pause"] = {pause->Startzeit, pause->Endzeit};
    }
    return objekt.dump(1);
}

std::string Fortschrittszeile(const SearchProgress& stand) {
    return Dauer(stand.bestDuration) + "  Gewinn " + Gewinntext(stand.gain) + "  Versuch " +
           std::to_string(stand.tries) + " von " + std::to_string(stand.totalTries) + "  Kette " +
           std::to_string(stand.chain) + "  " + WholeText(stand.triesPerSecond) +
           "/s  besser vor " + WholeText(stand.secondsSinceBest) + " s";
}

}  // namespace tarvelin
