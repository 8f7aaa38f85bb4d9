// Timetable and figures as aligned text and as CSV.
#include "export/RunReport.h"

#include <functional>
#include <vector>

#include "export/TextTable.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

using TextRow = std::vector<std::string>;

TextRow Header(const char* last) {
    return {"Nr.", "Wochentag", "Uhrzeit", "theText", "Zeitpunkt", last};
}

/// `text(i)` gives the last column of row `i`.
std::vector<TextRow> ScheduleRows(const Schedule& schedule,
                                  const std::function<std::string(std::size_t)>& text) {
    std::vector<TextRow> rows;
    rows.reserve(schedule.size());
    for (std::size_t i = 0; i < schedule.size(); ++i) {
        const ScheduleEntry& entry = schedule[i];
        rows.push_back({std::to_string(i + 1), entry.Weekday(), entry.TimeOfDay(), entry.theText(),
                        DateTimeText(entry.start), text(i)});
    }
    return rows;
}

std::vector<TextRow> ResultFigures(const PlanRun& planRun) {
    const GameState& state = planRun.run.state;
    return {{"Dauer:", DurationText(state)},
            {"Metall:", planRun.texts.LBL_Met},
            {"Kristall:", planRun.texts.LBL_Kris},
            {"Deuterium:", planRun.texts.LBL_Deut},
            {"Energie:", planRun.texts.LBL_ENergie},
            {"Punkte:", PointsText(state)},
            {"Punkte inkl. Res.:", PointsWithStockText(state)}};
}

std::string CsvField(const std::string& text) {
    if (text.find_first_of(";\"\r\n") == std::string::npos) {
        return text;
    }
    std::string field = "\"";
    for (const char character : text) {
        field += character;
        if (character == '"') {
            field += character;
        }
    }
    return field + "\"";
}

void WriteCsvRow(std::ostream& stream, const std::string& plan, const TextRow& row) {
    stream << CsvField(plan);
    for (const std::string& text : row) {
        stream << ';' << CsvField(text);
    }
    stream << "\r\n";
}

}  // namespace

void WriteText(std::ostream& stream, const PlanRun& planRun) {
    stream << planRun.name << "\n\n";
    const RunTrace trace = planRun.Trace();
    auto rows = ScheduleRows(planRun.run.LV_Bauzeiten,
                             [&](std::size_t i) { return DelayText(trace, trace.starts[i].row); });
    rows.insert(rows.begin(), Header("Grund"));
    WriteTable(stream, rows, {0});
    stream << '\n';
    WriteTable(stream, ResultFigures(planRun), {1});
}

void WriteCsvHeader(std::ostream& stream) {
    stream << "\xEF\xBB\xBF";
    WriteCsvRow(stream, "Plan", Header("Verzögerung"));
}

void WriteCsvRows(std::ostream& stream, const PlanRun& planRun) {
    const Schedule& schedule = planRun.run.LV_Bauzeiten;
    for (const TextRow& row :
         ScheduleRows(schedule, [&](std::size_t i) { return schedule[i].VerzoegerungsGrund(); })) {
        WriteCsvRow(stream, planRun.name, row);
    }
}

}  // namespace tarvelin
