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

json AlsJson(const Fund& fund, const GameState& stand) {
    json raten = json::array();
    for (const FixedPoint rate : stand.ProStunde) {
        raten.push_back(rate.WholePart());
    }
    return {{"Sekunden", fund.Wertung.Dauer},
            {"Dauer", Dauer(fund.Wertung.Dauer)},
            {"Zeilen", fund.Orders.size()},
            {"Sitzungen", fund.Wertung.Sitzungen},
            {"ProStunde", raten}};
}

std::string Fundtext(const Fund& fund) {
    return Dauer(fund.Wertung.Dauer) + "   " +
           Anzahltext(static_cast<std::size_t>(fund.Wertung.Sitzungen), "Sitzung", "Sitzungen") +
           "   " + Anzahltext(fund.Orders.size(), "Zeile", "Zeilen");
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
    const Fund& nachher = *bericht.Ergebnis.Bester;
    const auto& vorher = bericht.Aufgabe.Vorher;
    SchreibeZeile(strom, "Vorher",
                  vorher ? Fundtext(*vorher) : "der Plan endet nie oder verfehlt das Ziel");
    SchreibeZeile(strom, "Nachher", Fundtext(nachher));
    if (vorher) {
        const Long gewinn = vorher->Wertung.Dauer - nachher.Wertung.Dauer;
        SchreibeZeile(strom, "Gewinn",
                      Gewinntext(gewinn) + " (" + Prozent(gewinn, vorher->Wertung.Dauer) + ")");
    }
    const OrderList& alte = bericht.Plan.Plan.LV_Bauliste.Orders();
    const OrderList& neue = bericht.Neuer.Plan.LV_Bauliste.Orders();
    for (const auto& [name, text] : {std::pair("Kommt dazu", UeberschussInWorten(neue, alte)),
                                     std::pair("Entfällt", UeberschussInWorten(alte, neue))}) {
        if (!text.empty()) {
            SchreibeZeile(strom, name, text);
        }
    }
    if (bericht.Plan.Gelaufen) {
        SchreibeZeile(strom, "Je Stunde", ProStundeText(bericht.Plan.Lauf.state) + " (vorher)");
    }
    SchreibeZeile(strom, "Je Stunde", ProStundeText(bericht.Neuer.Lauf.state) + " (nachher)");
    if (const auto& pause = bericht.Aufgabe.Pause) {
        SchreibeZeile(strom, "Pause", pause->Startzeit + " bis " + pause->Endzeit);
    }
    SchreibeZeile(
        strom, "Versuche",
        std::to_string(bericht.Ergebnis.Versuche) + "   Saat: " + std::to_string(bericht.Saat));
    strom << '\n';
    SchreibeText(strom, bericht.Neuer);
}

std::string SuchJson(const Suchbericht& bericht) {
    const auto& vorher = bericht.Aufgabe.Vorher;
    json tags = json::array();
    for (const Order& order : bericht.Ergebnis.Bester->Orders) {
        tags.push_back(order.Tag());
    }
    const OrderList& alte = bericht.Plan.Plan.LV_Bauliste.Orders();
    const OrderList& neue = bericht.Neuer.Plan.LV_Bauliste.Orders();
    json objekt{{"Vorher", vorher ? AlsJson(*vorher, bericht.Plan.Lauf.state) : json()},
                {"Nachher", AlsJson(*bericht.Ergebnis.Bester, bericht.Neuer.Lauf.state)},
                {"Versuche", bericht.Ergebnis.Versuche},
                {"Saat", bericht.Saat},
                {"Hinzu", Ueberschuss(neue, alte)},
                {"Weg", Ueberschuss(alte, neue)},
                {"Bauliste", tags}};
    if (const auto& pause = bericht.Aufgabe.Pause) {
        objekt["Pause"] = {pause->Startzeit, pause->Endzeit};
    }
    return objekt.dump(1);
}

std::string Fortschrittszeile(const Fortschritt& stand) {
    return Dauer(stand.BesteDauer) + "  Gewinn " + Gewinntext(stand.Gewinn) + "  Versuch " +
           std::to_string(stand.Versuche) + " von " + std::to_string(stand.VonVersuchen) +
           "  Kette " + std::to_string(stand.Kette) + "  " + WholeText(stand.VersucheJeSekunde) +
           "/s  besser vor " + WholeText(stand.SeitBestem) + " s";
}

}  // namespace tarvelin
