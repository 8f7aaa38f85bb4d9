// Matches the orders of two runs.
#include "simulation/Comparison.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <utility>

#include "simulation/Sittings.h"

namespace tarvelin {

namespace {

/// Orders with the same tag and number match.
using RowKey = std::pair<std::string, int>;

void AddStarts(const RunTrace& trace, std::optional<SimTime> ComparisonRow::*side,
               std::map<RowKey, ComparisonRow>& rows) {
    std::map<std::string, int> productionCounts;
    for (const StartEvent& start : trace.starts) {
        const std::string tag = start.order.Tag();
        const int number =
            start.order.kind == Order::Kind::Item ? start.number : ++productionCounts[tag];
        ComparisonRow& row = rows[{tag, number}];
        row.order = start.order;
        row.number = number;
        row.*side = start.start;
    }
}

/// Symmetric in A and B, so that exchanging the runs doesn't change the sequence.
std::tuple<SimTime, SimTime, std::string, int> Rank(const ComparisonRow& row) {
    const SimTime startInA = row.a ? *row.a : *row.b;
    const SimTime startInB = row.b ? *row.b : *row.a;
    return {std::min(startInA, startInB), std::max(startInA, startInB), row.order.Tag(),
            row.number};
}

}  // namespace

RunSummary RunSummary::Of(const RunTrace& trace) {
    RunSummary summary{.duration = trace.Duration().Seconds(),
                       .VerbauteRessourcen = trace.end.VerbauteRessourcen,
                       .stock = trace.end.stock};
    SittingCounter counter;
    PerQueue<std::int64_t> busySeconds{};
    for (const StartEvent& start : trace.starts) {
        counter.Add(start.start);
        busySeconds[start.order.queue] += start.finish - start.start;
    }
    summary.sittings = counter.count;
    for (std::size_t i = 0; i < busySeconds.size(); ++i) {
        summary.idle[i] = Saturate<Long>(summary.duration - busySeconds[i]);
    }
    return summary;
}

Comparison Compare(const RunTrace& a, const RunTrace& b) {
    std::map<RowKey, ComparisonRow> rows;
    AddStarts(a, &ComparisonRow::a, rows);
    AddStarts(b, &ComparisonRow::b, rows);
    Comparison comparison{.a = RunSummary::Of(a), .b = RunSummary::Of(b), .differences = {}};
    for (const auto& [key, row] : rows) {
        if (row.a != row.b) {
            comparison.differences.push_back(row);
        }
    }
    std::ranges::sort(comparison.differences, {}, Rank);
    return comparison;
}

}  // namespace tarvelin
