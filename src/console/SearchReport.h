// What a search came to, as text and as JSON.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

#include "persistence/PlanRun.h"
#include "search/PlanTask.h"

namespace tarvelin {

/// A search that is over: the plan before, the best list, and its run.
struct SearchReport {
    /// The plan as it was loaded.
    const PlanRun& before;
    const PlanTask& task;
    const SearchResult& result;
    /// The new plan, loaded and run as a file would be.
    const PlanRun& after;
    std::uint64_t seed;
};

/// Before, after, gain, sittings, what came and went, rates, and the new timetable.
void WriteSearch(std::ostream& stream, const SearchReport& report);

/// One object.
[[nodiscard]] std::string SearchJson(const SearchReport& report);

/// "1.234.000 von 2.000.000 ...": where a search stands, in one line without an end.
[[nodiscard]] std::string ProgressLine(const SearchProgress& progress);

}  // namespace tarvelin
