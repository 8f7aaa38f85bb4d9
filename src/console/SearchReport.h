// What a search came to, as text and as JSON.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

#include "persistence/PlanRun.h"
#include "search/PlanTask.h"

namespace tarvelin {

/// A search that is over: the plan before, the best list, and its run.
struct Suchbericht {
    /// The plan as it was loaded.
    const PlanRun& Plan;
    const PlanTask& Aufgabe;
    const SearchResult& Ergebnis;
    /// The new plan, loaded and run as a file would be.
    const PlanRun& Neuer;
    std::uint64_t Saat;
};

/// Before, after, gain, sittings, what came and went, rates, and the new timetable.
void SchreibeSuche(std::ostream& strom, const Suchbericht& bericht);

/// One object.
[[nodiscard]] std::string SuchJson(const Suchbericht& bericht);

/// "1.234.000 von 2.000.000 ...": where a search stands, in one line without an end.
[[nodiscard]] std::string Fortschrittszeile(const SearchProgress& stand);

}  // namespace tarvelin
