// Timetable and figures as aligned text and as rows of a spreadsheet.
#include "console/RunReport.h"

#include <functional>
#include <vector>

#include "console/TextTable.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

using Zeile = std::vector<std::string>;

Zeile Kopf(const char* letzte) {
    return {"Nr.", "Wochentag", "Uhrzeit", "theText", "Zeitpunkt", letzte};
}

/// The rows, with what `text` gives for each in the last column.
std::vector<Zeile> Zeittabelle(const Schedule& bauzeiten,
                               const std::function<std::string(std::size_t)>& text) {
    std::vector<Zeile> zeilen;
    zeilen.reserve(bauzeiten.size());
    for (std::size_t i = 0; i < bauzeiten.size(); ++i) {
        const ScheduleEntry& bauzeit = bauzeiten[i];
        zeilen.push_back({std::to_string(i + 1), bauzeit.Weekday(), bauzeit.TimeOfDay(),
                          bauzeit.theText(), DateTimeText(bauzeit.start), text(i)});
    }
    return zeilen;
}

/// Name and figure of what a run came to.
std::vector<Zeile> Ergebnisfiguren(const Planlauf& lauf) {
    const GameState& stand = lauf.Lauf.state;
    return {{"Dauer:", DurationText(stand)},
            {"Metall:", lauf.Texte.LBL_Met},
            {"Kristall:", lauf.Texte.LBL_Kris},
            {"Deuterium:", lauf.Texte.LBL_Deut},
            {"Energie:", lauf.Texte.LBL_ENergie},
            {"Punkte:", PointsText(stand)},
            {"Punkte inkl. Res.:", PointsWithStockText(stand)}};
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
    const RunTrace ablauf = lauf.Abgespielt();
    auto zeilen = Zeittabelle(lauf.Lauf.LV_Bauzeiten, [&](std::size_t i) {
        return DelayText(ablauf, ablauf.starts[i].row);
    });
    zeilen.insert(zeilen.begin(), Kopf("Grund"));
    SchreibeTabelle(strom, zeilen, {0});
    strom << '\n';
    SchreibeTabelle(strom, Ergebnisfiguren(lauf), {1});
}

void SchreibeCsvKopf(std::ostream& strom) {
    strom << "\xEF\xBB\xBF";
    SchreibeCsvZeile(strom, "Plan", Kopf("Verzögerung"));
}

void SchreibeCsv(std::ostream& strom, const Planlauf& lauf) {
    const Schedule& bauzeiten = lauf.Lauf.LV_Bauzeiten;
    for (const Zeile& zeile :
         Zeittabelle(bauzeiten, [&](std::size_t i) { return bauzeiten[i].VerzoegerungsGrund(); })) {
        SchreibeCsvZeile(strom, lauf.Name, zeile);
    }
}

}  // namespace tarvelin
