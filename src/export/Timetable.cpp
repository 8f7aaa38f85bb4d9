// The columns of the timetable.
#include "export/Timetable.h"

#include "export/TextTable.h"
#include "simulation/RunTexts.h"
#include "util/DateTime.h"

namespace tarvelin {

namespace {

TextTable Timetable(const RunTrace& trace) {
    TextTable table{{"Nr.", "Auftrag", "Start", "Fertig", "Grund"}};
    for (const StartEvent& start : trace.starts) {
        table.push_back({std::to_string(start.row + 1), OrderText(start),
                         DateTimeText(trace.conditions.WallClock(start.start)),
                         DateTimeText(trace.conditions.WallClock(start.finish)),
                         DelayText(trace, start.row)});
    }
    return table;
}

}  // namespace

std::string TimetableTsv(const RunTrace& trace) {
    return TsvText(Timetable(trace));
}

std::string TimetableHtml(const RunTrace& trace) {
    return HtmlText(Timetable(trace));
}

}  // namespace tarvelin
