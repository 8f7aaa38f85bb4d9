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
std::vector<Zeile> Ergebnisfiguren(const PlanRun& lauf) {
    const GameState& stand = lauf.run.state;
    return {{"Dauer:", DurationText(stand)},
            {"Metall:", lauf.texts.LBL_Met},
            {"Kristall:", lauf.texts.LBL_Kris},
            {"Deuterium:", lauf.texts.LBL_Deut},
            {"Energie:", lauf.texts.LBL_ENergie},
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

void SchreibeText(std::ostream& strom, const PlanRun& lauf) {
    strom << lauf.name << "\n\n";
    const RunTrace ablauf = lauf.Trace();
    auto zeilen = Zeittabelle(lauf.run.LV_Bauzeiten, [&](std::size_t i) {
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

void SchreibeCsv(std::ostream& strom, const PlanRun& lauf) {
    const Schedule& bauzeiten = lauf.run.LV_Bauzeiten;
    for (const Zeile& zeile :
         Zeittabelle(bauzeiten, [&](std::size_t i) { return bauzeiten[i].VerzoegerungsGrund(); })) {
        SchreibeCsvZeile(strom, lauf.name, zeile);
    }
}

}  // namespace tarvelin
