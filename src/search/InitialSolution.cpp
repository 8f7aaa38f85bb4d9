// Builds a list greedily, or repairs the given one.
#include "search/InitialSolution.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

#include "plan/Rules.h"
#include "search/IncrementalEvaluator.h"
#include "search/Neighborhood.h"

namespace tarvelin {

namespace {

constexpr Long kNoLimit = std::numeric_limits<Long>::max();

/// Which orders are taken before others that would end sooner.
enum class Preference : std::uint8_t {
    None,
    /// Those that cost deuterium, as a production row may stop its mine later.
    Deuterium,
};

bool CostsDeuterium(const Order& order) {
    return order.kind == Order::Kind::Item && RowOf(order.item).baseCost[Resource::Deuterium] > 0;
}

/// The index in `remaining` of the order with which the list ends soonest.
std::optional<std::size_t> NextOrder(IncrementalEvaluator& evaluator, std::vector<Order>& list,
                                     const std::vector<Order>& remaining,
                                     const PerItem<Byte>& levels, Preference preference) {
    std::optional<std::size_t> best;
    std::pair<bool, Long> value{true, kNoLimit};
    PerItem<bool> asked{};
    for (std::size_t i = 0; i < remaining.size(); ++i) {
        const Order& order = remaining[i];
        const bool item = order.kind == Order::Kind::Item;
        if (item && (asked[order.item] || !IsAllowed(order.item, levels))) {
            continue;
        }
        asked[order.item] = asked[order.item] || item;
        list.push_back(order);
        const auto score = evaluator.Evaluate(list, list.size() - 1, kNoLimit);
        list.pop_back();
        const bool back = preference == Preference::Deuterium && !CostsDeuterium(order);
        if (score && std::pair(back, score->duration) < value) {
            value = {back, score->duration};
            best = i;
        }
    }
    return best;
}

std::optional<std::vector<Order>> GreedyList(const SearchTask& task, Preference preference) {
    const std::vector<Order>& pattern = task.orders;
    const auto pinned = [&](std::size_t i) { return i < task.headSize || task.pinned[i]; };
    std::vector<Order> remaining;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (!pinned(i)) {
            remaining.push_back(pattern[i]);
        }
    }
    IncrementalEvaluator evaluator(task);
    std::vector<Order> list;
    PerItem<Byte> levels{};
    while (list.size() < pattern.size()) {
        const std::size_t row = list.size();
        if (pinned(row)) {
            list.push_back(pattern[row]);
        } else {
            const auto next = NextOrder(evaluator, list, remaining, levels, preference);
            if (!next) {
                return std::nullopt;
            }
            list.push_back(remaining[*next]);
            remaining.erase(remaining.begin() + static_cast<std::ptrdiff_t>(*next));
        }
        const Order& order = list.back();
        if (order.kind == Order::Kind::Item) {
            if (!IsAllowed(order.item, levels)) {
                return std::nullopt;
            }
            ++levels[order.item];
        }
        if (!evaluator.Evaluate(list, row, kNoLimit)) {
            return std::nullopt;
        }
        evaluator.Accept();
    }
    return list;
}

/// Accepts moves that let no fewer orders start, until all do.
std::optional<std::vector<Order>> RepairedList(const SearchTask& task,
                                               const std::atomic<bool>& stop) {
    constexpr int kTries = 40'000;
    Random random(1);
    Neighborhood neighborhood(task, task.orders, task.pinned);
    IncrementalEvaluator evaluator(task);
    bool ends = evaluator.Evaluate(neighborhood.Current(), 0, kNoLimit).has_value();
    evaluator.Accept();
    std::size_t started = evaluator.StartedCount();
    for (int i = 0; i < kTries && !ends && !stop; ++i) {
        const auto from = neighborhood.Propose(random);
        // Orders after the failing one aren't played.
        if (!from || *from >= started) {
            continue;
        }
        ends = evaluator.Evaluate(neighborhood.Neighbor(), *from, kNoLimit).has_value();
        if (ends || evaluator.StartedCount() >= started) {
            started = evaluator.StartedCount();
            neighborhood.Accept();
            evaluator.Accept();
        }
    }
    return ends ? std::optional(neighborhood.Current()) : std::nullopt;
}

}  // namespace

std::optional<std::vector<Order>> FindInitialSolution(const SearchTask& task,
                                                      const std::atomic<bool>& stop) {
    for (const Preference preference : {Preference::None, Preference::Deuterium}) {
        if (auto list = GreedyList(task, preference)) {
            return list;
        }
    }
    return task.kind == SearchTask::Kind::Sequence ? RepairedList(task, stop) : std::nullopt;
}

}  // namespace tarvelin
