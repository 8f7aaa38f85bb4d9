// A plan and its result as text, CSV and JSON.
#pragma once

#include <ostream>
#include <string>

#include "document/PlanRun.h"

namespace tarvelin {

/// The timetable with the reason of each delay, then duration, stocks, energy and points. Only if
/// `hasRun`.
void WriteText(std::ostream& stream, const PlanRun& planRun);

/// With a byte-order mark, by which spreadsheets recognize UTF-8.
void WriteCsvHeader(std::ostream& stream);
/// The rows of the timetable; the first column is the plan's file name.
void WriteCsvRows(std::ostream& stream, const PlanRun& planRun);

/// One object with the plan and its result; with `withHistory` also the history of the stocks and
/// the orders with the reasons of their delays, under "Verlauf".
[[nodiscard]] std::string JsonText(const PlanRun& planRun, bool withHistory = false);

}  // namespace tarvelin
