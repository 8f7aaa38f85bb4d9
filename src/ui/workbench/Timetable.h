// The timetable for other programs: chats, spreadsheets.
#pragma once

#include <string>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// A line for each order, columns parted by tabs, the captions first.
[[nodiscard]] std::string TimetableTsv(const RunTrace& trace);

/// The same as a table of a web page.
[[nodiscard]] std::string TimetableHtml(const RunTrace& trace);

}  // namespace tarvelin
