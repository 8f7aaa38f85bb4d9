// Timetable and figures as aligned text and as CSV.
#include "export/RunReport.h"

#include "export/TextTable.h"
#include "simulation/RunTexts.h"

namespace tarvelin {

namespace {

TextRow Header(const char* last) {
    return {"Nr.", "Wochentag", "Uhrzeit", "theText", "Zeitpunkt", last};
}

/// The row `i` of the schedule.
TextRow ScheduleRow(const Schedule& schedule, std::size_t i, std::string last) {
    const ScheduleEntry& entry = schedule[i];
    return {std::to_string(i + 1), entry.Weekday(),           entry.TimeOfDay(),
            entry.theText(),       DateTimeText(entry.start), std::move(last)};
}

TextTable ResultFigures(const PlanRun& planRun) {
    const GameState& state = planRun.run.state;
    return {{"Dauer:", DurationText(state)},
            {"Metall:", planRun.texts.LBL_Met},
            {"Kristall:", planRun.texts.LBL_Kris},
            {"Deuterium:", planRun.texts.LBL_Deut},
            {"Energie:", planRun.texts.LBL_ENergie},
            {"Punkte:", PointsText(state)},
            {"Punkte inkl. Res.:", PointsWithStockText(state)}};
}

}  // namespace

std::string RunText(const PlanRun& planRun) {
    const RunTrace trace = planRun.Trace();
    const Schedule& schedule = planRun.run.LV_Bauzeiten;
    TextTable table{Header("Grund")};
    for (std::size_t i = 0; i < schedule.size(); ++i) {
        table.push_back(ScheduleRow(schedule, i, DelayText(trace, trace.starts[i].row)));
    }
    return planRun.name + "\n\n" + AlignedText(table, {0}) + "\n" +
           AlignedText(ResultFigures(planRun), {1});
}

std::string RunCsvHeader() {
    TextRow header = Header("Verzögerung");
    header.insert(header.begin(), "Plan");
    return "\xEF\xBB\xBF" + CsvText({header});
}

std::string RunCsv(const PlanRun& planRun) {
    const Schedule& schedule = planRun.run.LV_Bauzeiten;
    TextTable table;
    for (std::size_t i = 0; i < schedule.size(); ++i) {
        TextRow row = ScheduleRow(schedule, i, schedule[i].VerzoegerungsGrund());
        row.insert(row.begin(), planRun.name);
        table.push_back(std::move(row));
    }
    return CsvText(table);
}

}  // namespace tarvelin
