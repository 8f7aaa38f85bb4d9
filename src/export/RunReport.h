// A plan and its result as text, CSV and JSON.
#pragma once

#include <string>

#include "document/PlanRun.h"

namespace tarvelin {

/// The timetable with the reason of each delay, then duration, stocks, energy and points. Only if
/// `hasRun`.
[[nodiscard]] std::string RunText(const PlanRun& planRun);

/// The names of the columns of `RunCsv`, after a byte-order mark, by which spreadsheets recognize
/// UTF-8.
[[nodiscard]] std::string RunCsvHeader();
/// The rows of the timetable; the first column is the plan's file name.
[[nodiscard]] std::string RunCsv(const PlanRun& planRun);

/// One object with the plan and its result; with `withHistory` also the history of the stocks and
/// the orders with the reasons of their delays, under "Verlauf".
[[nodiscard]] std::string RunJson(const PlanRun& planRun, bool withHistory = false);

}  // namespace tarvelin
