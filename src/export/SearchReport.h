// The result of a search as text and as JSON.
#pragma once

#include <cstdint>
#include <string>

#include "document/PlanRun.h"
#include "search/PlanTask.h"

namespace tarvelin {

struct SearchReport {
    /// The plan as it was loaded.
    const PlanRun& before;
    const PlanTask& task;
    const SearchResult& result;
    /// The new plan and its run.
    const PlanRun& after;
    std::uint64_t seed;
};

/// Before, after, gain, sittings, what came and went, rates, and the new timetable.
[[nodiscard]] std::string SearchText(const SearchReport& report);

[[nodiscard]] std::string SearchJson(const SearchReport& report);

/// One line without its end: "01 Tage 02:03:04  Gewinn 00 Tage 00:10:00  Versuch 1234 von ...".
[[nodiscard]] std::string ProgressLine(const SearchProgress& progress);

}  // namespace tarvelin
