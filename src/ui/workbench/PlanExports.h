// What the workbench hands out: the timetable, the calendar, pictures.
#pragma once

#include <optional>
#include <string>

#include "simulation/RunTrace.h"
#include "ui/services/Environment.h"
#include "ui/timeline/PlanPoster.h"
#include "ui/timeline/TimelineView.h"

namespace tarvelin {

/// Each tells what it has done or why it couldn't; empty if the user gave up.
[[nodiscard]] std::string CopyTimetable(const RunTrace& trace);
/// `leadTime` is how many seconds before a start the calendar reminds; it doesn't without one.
[[nodiscard]] std::string SaveCalendar(const RunTrace& trace, std::optional<Long> leadTime,
                                       const Environment& environment);
/// The poster of a plan, which has a name if it has a file.
[[nodiscard]] std::string SavePoster(const RunTrace& trace, const PlanPoster::Parts& parts,
                                     const Environment& environment);
/// Of what the timeline shows.
[[nodiscard]] std::string SaveSection(TimelineView& timeline, const Environment& environment);

}  // namespace tarvelin
