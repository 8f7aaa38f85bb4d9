// Fills and plays in turn until the end stays.
#include "document/NightProposal.h"

#include <algorithm>
#include <utility>

namespace tarvelin {

namespace {

std::optional<RunTrace> Play(const Plan& plan) {
    const auto conditions = ParseRunConditions(plan);
    const auto* const parsed = std::get_if<RunConditions>(&conditions);
    return parsed == nullptr ? std::nullopt
                             : std::optional(TraceRun(plan.LV_Bauliste.Orders().All(), *parsed));
}

}  // namespace

NightProposal ProposeNights(const Plan& plan, const SleepRule& rule, AtOverlap atOverlap) {
    NightProposal proposal{.filled = {.table = plan.LV_Schlafzeiten, .changedRows = {}},
                           .trace = Play(plan)};
    const auto start = ReadUniStartZeit(plan.parameters);
    if (!start) {
        return proposal;
    }
    Plan played = plan;
    // Each round adds a night at least, or ends it.
    for (std::size_t round = 0; round < kMaxNights; ++round) {
        const DateTime end = proposal.trace
                                 ? proposal.trace->conditions.WallClock(proposal.trace->Duration())
                                 : *start;
        proposal.filled = FillWithNights(plan.LV_Schlafzeiten, rule, *start, end, atOverlap);
        if (proposal.filled.table == played.LV_Schlafzeiten) {
            break;
        }
        played.LV_Schlafzeiten = proposal.filled.table;
        proposal.trace = Play(played);
    }
    return proposal;
}

std::vector<cSchlafzeit> NewNights(const FilledSleepTable& filled) {
    std::vector<cSchlafzeit> nights;
    for (const std::size_t row : filled.changedRows) {
        nights.push_back(ParseSleepRow(filled.table[row]).value_or(cSchlafzeit()));
    }
    return nights;
}

std::set<std::size_t> RowsInNewNights(const RunTrace& trace, const FilledSleepTable& filled) {
    const auto nights = NewNights(filled);
    std::set<std::size_t> rows;
    for (const StartEvent& start : trace.starts) {
        const DateTime moment = trace.conditions.WallClock(start.start);
        if (std::ranges::any_of(nights, [&](const cSchlafzeit& night) {
                return night.Startzeit() <= moment && moment < night.Endzeit();
            })) {
            rows.insert(start.row);
        }
    }
    return rows;
}

}  // namespace tarvelin
