// Rows and their two forms.
#include "ui/workbench/Timetable.h"

#include <array>
#include <vector>

#include "simulation/RunTexts.h"
#include "util/DateTime.h"

namespace tarvelin {

namespace {

using Zeile = std::array<std::string, 5>;

std::vector<Zeile> Zeilen(const RunTrace& ablauf) {
    std::vector<Zeile> zeilen{{"Nr.", "Auftrag", "Start", "Fertig", "Grund"}};
    for (const StartEvent& start : ablauf.starts) {
        zeilen.push_back({std::to_string(start.row + 1), OrderText(start),
                          DateTimeText(ablauf.conditions.WallClock(start.start)),
                          DateTimeText(ablauf.conditions.WallClock(start.finish)),
                          DelayText(ablauf, start.row)});
    }
    return zeilen;
}

/// Rows between marks; none of the texts has a letter that needs another form.
std::string Gesetzt(const std::vector<Zeile>& zeilen, const char* vorZeile, const char* vorZelle,
                    const char* zwischen, const char* nachZeile) {
    std::string text;
    for (const Zeile& zeile : zeilen) {
        text += vorZeile;
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            text += (i == 0 ? "" : zwischen) + (vorZelle + zeile[i]);
        }
        text += nachZeile;
    }
    return text;
}

}  // namespace

std::string ZeitplanMitTabs(const RunTrace& ablauf) {
    return Gesetzt(Zeilen(ablauf), "", "", "\t", "\n");
}

std::string ZeitplanAlsTabelle(const RunTrace& ablauf) {
    return "<table>" + Gesetzt(Zeilen(ablauf), "<tr>", "<td>", "</td>", "</td></tr>") + "</table>";
}

}  // namespace tarvelin
