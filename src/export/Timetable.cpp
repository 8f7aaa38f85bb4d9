// The rows and their two formats.
#include "export/Timetable.h"

#include <array>
#include <vector>

#include "simulation/RunTexts.h"
#include "util/DateTime.h"

namespace tarvelin {

namespace {

using TextRow = std::array<std::string, 5>;

std::vector<TextRow> Rows(const RunTrace& trace) {
    std::vector<TextRow> rows{{"Nr.", "Auftrag", "Start", "Fertig", "Grund"}};
    for (const StartEvent& start : trace.starts) {
        rows.push_back({std::to_string(start.row + 1), OrderText(start),
                        DateTimeText(trace.conditions.WallClock(start.start)),
                        DateTimeText(trace.conditions.WallClock(start.finish)),
                        DelayText(trace, start.row)});
    }
    return rows;
}

/// None of the texts contains a character that needs escaping.
std::string Joined(const std::vector<TextRow>& rows, const char* beforeRow, const char* beforeCell,
                   const char* between, const char* afterRow) {
    std::string text;
    for (const TextRow& row : rows) {
        text += beforeRow;
        for (std::size_t i = 0; i < row.size(); ++i) {
            text += (i == 0 ? "" : between) + (beforeCell + row[i]);
        }
        text += afterRow;
    }
    return text;
}

}  // namespace

std::string TimetableTsv(const RunTrace& trace) {
    return Joined(Rows(trace), "", "", "\t", "\n");
}

std::string TimetableHtml(const RunTrace& trace) {
    return "<table>" + Joined(Rows(trace), "<tr>", "<td>", "</td>", "</td></tr>") + "</table>";
}

}  // namespace tarvelin
