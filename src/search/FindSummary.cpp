// Compares two lists, and plays both for their rates.
#include "search/FindSummary.h"

#include <algorithm>
#include <span>

#include "simulation/RunTexts.h"
#include "simulation/RunTrace.h"

namespace tarvelin {

namespace {

FindFigures FiguresOf(const Score& score, std::span<const Order> orders,
                      const RunConditions& conditions) {
    FindFigures figures{.duration = score.duration, .sittings = score.sittings};
    const GameState end = TraceRun(orders, conditions).end;
    for (const Resource resource : kResources) {
        figures.rates[resource] = end.ProStunde[resource].WholePart();
    }
    return figures;
}

/// With the number that each order reaches.
std::vector<ListedOrder> Listed(std::span<const Order> orders) {
    std::vector<ListedOrder> listed;
    PerItem<int> counts{};
    for (const Order& order : orders) {
        const int number = order.kind == Order::Kind::Item ? ++counts[order.item] : 0;
        listed.push_back({order, OrderText(order, number)});
    }
    return listed;
}

std::optional<ListedOrder> At(const std::vector<ListedOrder>& list, std::size_t row) {
    return row < list.size() ? std::optional(list[row]) : std::nullopt;
}

}  // namespace

FindSummary SummaryOf(const Plan& plan, const PlanTask& task, const Solution& find) {
    const auto orders = plan.LV_Bauliste.Orders().All();
    FindSummary summary;
    if (task.before) {
        summary.before = FiguresOf(task.before->score, orders, task.task.conditions);
    }
    summary.after = FiguresOf(find.score, find.orders, task.task.conditions);
    const auto count = [&](std::span<const Order> list, int sign) {
        for (const Order& order : list) {
            if (order.kind == Order::Kind::Item) {
                summary.more[order.item] += sign;
            }
        }
    };
    count(find.orders, 1);
    count(orders, -1);
    const auto now = Listed(orders);
    const auto found = Listed(find.orders);
    for (std::size_t row = 0; row < std::max(now.size(), found.size()); ++row) {
        DifferentRow different{.row = row, .now = At(now, row), .find = At(found, row)};
        if (different.now != different.find) {
            summary.rows.push_back(std::move(different));
        }
    }
    return summary;
}

}  // namespace tarvelin
