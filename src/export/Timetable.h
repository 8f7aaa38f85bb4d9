// The timetable as text for other programs, such as chats and spreadsheets.
#pragma once

#include <string>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// A header and a line for each order, with tabs between columns.
[[nodiscard]] std::string TimetableTsv(const RunTrace& trace);

/// The same as an HTML table.
[[nodiscard]] std::string TimetableHtml(const RunTrace& trace);

}  // namespace tarvelin
