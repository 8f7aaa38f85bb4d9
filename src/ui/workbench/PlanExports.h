// What the workbench hands out: the timetable, the calendar, the picture of the timeline.
#pragma once

#include <optional>
#include <string>

#include "simulation/RunTrace.h"
#include "ui/services/Environment.h"
#include "ui/workbench/TimelineView.h"

namespace tarvelin {

/// Each tells what it has done or why it couldn't; empty if the user gave up.
[[nodiscard]] std::string CopyTimetable(const RunTrace& trace);
/// `leadTime` is how many seconds before a start the calendar reminds; it doesn't without one.
[[nodiscard]] std::string SaveCalendar(const RunTrace& trace, std::optional<Long> leadTime,
                                       const Environment& environment);
/// Of what the timeline shows.
[[nodiscard]] std::string SavePicture(TimelineView& timeline, const Environment& environment);

}  // namespace tarvelin
