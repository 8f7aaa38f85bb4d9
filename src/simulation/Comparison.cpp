// Matching of orders.
#include "simulation/Comparison.h"

#include <algorithm>
#include <map>
#include <string>
#include <tuple>
#include <utility>

#include "simulation/Sittings.h"

namespace tarvelin {

namespace {

/// What makes two orders the same: the code or the factors, and the number.
using RowKey = std::pair<std::string, int>;

void Enter(const RunTrace& trace, std::optional<SimTime> ComparisonRow::*side,
           std::map<RowKey, ComparisonRow>& rows) {
    std::map<std::string, int> productions;
    for (const StartEvent& start : trace.starts) {
        const std::string tag = start.order.Tag();
        const int number =
            start.order.kind == Order::Kind::Item ? start.number : ++productions[tag];
        ComparisonRow& row = rows[{tag, number}];
        row.order = start.order;
        row.number = number;
        row.*side = start.start;
    }
}

/// The same whichever run is which.
std::tuple<SimTime, SimTime, std::string, int> Rank(const ComparisonRow& row) {
    const SimTime a = row.a ? *row.a : *row.b;
    const SimTime b = row.b ? *row.b : *row.a;
    return {std::min(a, b), std::max(a, b), row.order.Tag(), row.number};
}

}  // namespace

RunSummary RunSummary::Of(const RunTrace& trace) {
    RunSummary figures{.duration = trace.Duration().Seconds(),
                       .VerbauteRessourcen = trace.end.VerbauteRessourcen,
                       .stock = trace.end.stock};
    SittingCounter counter;
    PerQueue<std::int64_t> busySeconds{};
    for (const StartEvent& start : trace.starts) {
        counter.Add(start.start);
        busySeconds[start.order.queue] += start.finish - start.start;
    }
    figures.sittings = counter.count;
    for (std::size_t i = 0; i < busySeconds.size(); ++i) {
        figures.idle[i] = Saturate<Long>(figures.duration - busySeconds[i]);
    }
    return figures;
}

Comparison Compare(const RunTrace& a, const RunTrace& b) {
    std::map<RowKey, ComparisonRow> rows;
    Enter(a, &ComparisonRow::a, rows);
    Enter(b, &ComparisonRow::b, rows);
    Comparison comparison{.a = RunSummary::Of(a), .b = RunSummary::Of(b), .differences = {}};
    for (const auto& [key, line] : rows) {
        if (line.a != line.b) {
            comparison.differences.push_back(line);
        }
    }
    std::ranges::sort(comparison.differences, {}, Rank);
    return comparison;
}

}  // namespace tarvelin
