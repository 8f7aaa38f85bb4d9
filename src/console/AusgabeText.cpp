// Timetable and figures as aligned text and as rows of a spreadsheet.
#include "console/Ausgabe.h"

#include <vector>

#include "console/Tabelle.h"

namespace tarvelin {

namespace {

using Zeile = std::vector<std::string>;

const Zeile& Kopf() {
    static const Zeile kKopf{"Nr.", "Wochentag", "Uhrzeit", "theText", "Zeitpunkt", "Verzögerung"};
    return kKopf;
}

std::vector<Zeile> Zeittabelle(const Bauzeiten& bauzeiten) {
    std::vector<Zeile> zeilen;
    zeilen.reserve(bauzeiten.size());
    for (const Bauzeit& bauzeit : bauzeiten) {
        zeilen.push_back({std::to_string(zeilen.size() + 1), bauzeit.Wochentag(), bauzeit.Uhrzeit(),
                          bauzeit.theText(), Datumzeittext(bauzeit.Start),
                          bauzeit.VerzoegerungsGrund()});
    }
    return zeilen;
}

/// Name and figure of what a run came to.
std::vector<Zeile> Ergebnisfiguren(const Planlauf& lauf) {
    const Spielstand& stand = lauf.Lauf.Stand;
    return {{"Dauer:", Dauertext(stand)},
            {"Metall:", lauf.Texte.LBL_Met},
            {"Kristall:", lauf.Texte.LBL_Kris},
            {"Deuterium:", lauf.Texte.LBL_Deut},
            {"Energie:", lauf.Texte.LBL_ENergie},
            {"Punkte:", Punktetext(stand)},
            {"Punkte inkl. Res.:", PunkteMitVorratText(stand)}};
}

std::string Csvfeld(const std::string& text) {
    if (text.find_first_of(";\"\r\n") == std::string::npos) {
        return text;
    }
    std::string feld = "\"";
    for (const char zeichen : text) {
        feld += zeichen;
        if (zeichen == '"') {
            feld += zeichen;
        }
    }
    return feld + "\"";
}

void SchreibeCsvZeile(std::ostream& strom, const std::string& plan, const Zeile& zeile) {
    strom << Csvfeld(plan);
    for (const std::string& text : zeile) {
        strom << ';' << Csvfeld(text);
    }
    strom << "\r\n";
}

}  // namespace

void SchreibeText(std::ostream& strom, const Planlauf& lauf) {
    strom << lauf.Name << "\n\n";
    std::vector<Zeile> zeilen = Zeittabelle(lauf.Lauf.LV_Bauzeiten);
    zeilen.insert(zeilen.begin(), Kopf());
    SchreibeTabelle(strom, zeilen, {0});
    strom << '\n';
    SchreibeTabelle(strom, Ergebnisfiguren(lauf), {1});
}

void SchreibeCsvKopf(std::ostream& strom) {
    strom << "\xEF\xBB\xBF";
    SchreibeCsvZeile(strom, "Plan", Kopf());
}

void SchreibeCsv(std::ostream& strom, const Planlauf& lauf) {
    for (const Zeile& zeile : Zeittabelle(lauf.Lauf.LV_Bauzeiten)) {
        SchreibeCsvZeile(strom, lauf.Name, zeile);
    }
}

}  // namespace tarvelin
