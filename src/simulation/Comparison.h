// The differences between two runs, each timed from its own start.
#pragma once

#include <optional>
#include <vector>

#include "simulation/RunTrace.h"

namespace tarvelin {

/// The key figures of a run.
struct RunSummary {
    /// Seconds.
    Long duration = 0;
    Long VerbauteRessourcen = 0;
    PerResource<FixedPoint> stock{};
    int sittings = 0;
    /// Seconds in which a queue is idle.
    PerQueue<Long> idle{};

    static RunSummary Of(const RunTrace& trace);

    friend bool operator==(const RunSummary&, const RunSummary&) = default;
};

/// An order that the runs start at different moments, or that only one of them has.
struct ComparisonRow {
    Order order;
    /// The level or number of an item; of a production row, its count among those with the same
    /// factors.
    int number = 0;
    /// The starts in A and B; nothing where the order is missing.
    std::optional<SimTime> a;
    std::optional<SimTime> b;

    /// How many seconds later it starts in B; nothing if only one run has it.
    [[nodiscard]] std::optional<Long> Difference() const {
        return a && b ? std::optional(*b - *a) : std::nullopt;
    }

    friend bool operator==(const ComparisonRow&, const ComparisonRow&) = default;
};

struct Comparison {
    RunSummary a;
    RunSummary b;
    /// By the earlier of the two starts.
    std::vector<ComparisonRow> differences;
};

/// Orders match if item and level or number are the same; production rows if their factors and
/// their count among those are. Exchanging the runs exchanges A and B and nothing else.
[[nodiscard]] Comparison Compare(const RunTrace& a, const RunTrace& b);

}  // namespace tarvelin
