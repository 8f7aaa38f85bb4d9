// The report of a search.
#include "console/Suchausgabe.h"

#include <nlohmann/json.hpp>

#include "console/Ausgabe.h"
#include "search/Suchtexte.h"
#include "util/Nuetzliches.h"
#include "util/Zahlentext.h"

namespace tarvelin {

namespace {

using nlohmann::json;

std::string Dauer(Long sekunden) {
    return FormatDuration(sekunden, "s", "dd(0)hh:mm:ss", "d");
}

json AlsJson(const Fund& fund, const Spielstand& stand) {
    json raten = json::array();
    for (const Festkomma rate : stand.ProStunde) {
        raten.push_back(rate.GanzerTeil());
    }
    return {{"Sekunden", fund.Wertung.Dauer},
            {"Dauer", Dauer(fund.Wertung.Dauer)},
            {"Zeilen", fund.Orders.size()},
            {"Sitzungen", fund.Wertung.Sitzungen},
            {"ProStunde", raten}};
}

std::string Zeile(const Fund& fund) {
    return Dauer(fund.Wertung.Dauer) + "   " + std::to_string(fund.Wertung.Sitzungen) +
           " Sitzungen   " + std::to_string(fund.Orders.size()) + " Zeilen";
}

std::string Prozent(Long gewinn, Long von) {
    constexpr double kHundert = 100;
    return Dezimaltext(von == 0 ? 0 : kHundert * gewinn / von, 1) + " %";
}

}  // namespace

void SchreibeSuche(std::ostream& strom, const Suchbericht& bericht) {
    const Fund& nachher = *bericht.Ergebnis.Bester;
    const auto& vorher = bericht.Aufgabe.Vorher;
    strom << "Vorher:    "
          << (vorher ? Zeile(*vorher) : "der Plan endet nie oder verfehlt das Ziel") << "\n"
          << "Nachher:   " << Zeile(nachher) << '\n';
    if (vorher) {
        const Long gewinn = vorher->Wertung.Dauer - nachher.Wertung.Dauer;
        strom << "Gewinn:    " << Dauer(gewinn) << " (" << Prozent(gewinn, vorher->Wertung.Dauer)
              << ")\n";
    }
    const Auftragsliste& alte = bericht.Plan.Plan.Liste.Auftraege();
    const Auftragsliste& neue = bericht.Neuer.Plan.Liste.Auftraege();
    for (const auto& [name, text] : {std::pair("Hinzu:     ", Ueberschuss(neue, alte)),
                                     std::pair("Weg:       ", Ueberschuss(alte, neue))}) {
        strom << (text.empty() ? "" : name + text + "\n");
    }
    if (bericht.Plan.Gelaufen) {
        strom << "Je Stunde: " << ProStundeText(bericht.Plan.Lauf.Stand) << " (vorher)\n";
    }
    strom << "Je Stunde: " << ProStundeText(bericht.Neuer.Lauf.Stand) << " (nachher)\n";
    if (const auto& pause = bericht.Aufgabe.Pause) {
        strom << "Pause:     " << pause->Startzeit << " bis " << pause->Endzeit << '\n';
    }
    strom << "Versuche:  " << bericht.Ergebnis.Versuche << "   Saat: " << bericht.Saat << "\n\n";
    SchreibeText(strom, bericht.Neuer);
}

std::string SuchJson(const Suchbericht& bericht) {
    const auto& vorher = bericht.Aufgabe.Vorher;
    json tags = json::array();
    for (const Auftrag& order : bericht.Ergebnis.Bester->Orders) {
        tags.push_back(order.Tag());
    }
    const Auftragsliste& alte = bericht.Plan.Plan.Liste.Auftraege();
    const Auftragsliste& neue = bericht.Neuer.Plan.Liste.Auftraege();
    json objekt{{"Vorher", vorher ? AlsJson(*vorher, bericht.Plan.Lauf.Stand) : json()},
                {"Nachher", AlsJson(*bericht.Ergebnis.Bester, bericht.Neuer.Lauf.Stand)},
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
    return Dauer(stand.BesteDauer) + "  Gewinn " + Dauer(stand.Gewinn) + "  Versuch " +
           std::to_string(stand.Versuche) + " von " + std::to_string(stand.VonVersuchen) +
           "  Kette " + std::to_string(stand.Kette) + "  " + Ganztext(stand.VersucheJeSekunde) +
           "/s  besser vor " + Ganztext(stand.SeitBestem) + " s";
}

}  // namespace tarvelin
