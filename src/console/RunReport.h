// The three forms in which the console prints a plan that was run.
#pragma once

#include <ostream>
#include <string>

#include "persistence/PlanRun.h"

namespace tarvelin {

/// Aligned German text: the timetable with the run's own reasons, then duration, stocks, energy and
/// points.
void WriteText(std::ostream& stream, const PlanRun& planRun);

/// The header row of the spreadsheet, with the byte-order mark that makes it UTF-8.
void WriteCsvHeader(std::ostream& stream);
/// The rows of the timetable, the plan's file name in front.
void WriteCsvRows(std::ostream& stream, const PlanRun& planRun);

/// One object with the whole plan and the whole result; on request with the history of the stocks
/// and the orders with their reasons, under `HistoryRecorder`.
[[nodiscard]] std::string JsonText(const PlanRun& planRun, bool withHistory = false);

}  // namespace tarvelin
