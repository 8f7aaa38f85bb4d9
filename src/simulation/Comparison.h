// Two runs set beside each other, each counted from its own start.
#pragma once

#include <optional>
#include <vector>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// What a run comes to.
struct RunSummary {
    /// Seconds.
    Long duration = 0;
    Long VerbauteRessourcen = 0;
    PerResource<FixedPoint> stock{};
    int sittings = 0;
    /// Seconds in which a queue has nothing to do.
    PerQueue<Long> idle{};

    static RunSummary Of(const RunTrace& trace);

    friend bool operator==(const RunSummary&, const RunSummary&) = default;
};

/// An order that one run starts at another moment than the other, or that only one of them has.
struct ComparisonRow {
    Order order;
    /// The level or number of an item; of a production row how manieth of its kind it is.
    int number = 0;
    std::optional<SimTime> a;
    std::optional<SimTime> b;

    /// How many seconds it starts later in B; nothing if only one has it.
    [[nodiscard]] std::optional<Long> Difference() const {
        return a && b ? std::optional(*b - *a) : std::nullopt;
    }

    friend bool operator==(const ComparisonRow&, const ComparisonRow&) = default;
};

struct Comparison {
    RunSummary a;
    RunSummary b;
    /// By the earlier of both starts.
    std::vector<ComparisonRow> differences;
};

/// Orders are the same if item and level or number are, production rows if their factors and their
/// number among those with these factors are. With the runs exchanged A and B are.
[[nodiscard]] Comparison Compare(const RunTrace& a, const RunTrace& b);

}  // namespace tarvelin
