// Makes a search task from a plan and a player's request, and a plan from the result.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "plan/Plan.h"
#include "search/Search.h"

namespace tarvelin {

struct SearchRequest {
    /// A text for `ParseGoal`. Nothing: find a better sequence of the plan's orders.
    std::optional<std::string> goal{};
    /// First and last row, from 1, of each range that keeps its place.
    std::vector<std::pair<std::size_t, std::size_t>> pinnedRanges{};
    /// Whether production rows may move too.
    bool moveProduction = false;
    /// Orders that start before this moment count as played.
    std::optional<DateTime> notBefore{};
};

/// Why there is no search.
struct SearchRefusal {
    std::string text;
    /// The request itself is wrong, not the plan.
    bool wrongCall = false;
};

struct PlanTask {
    SearchTask task;
    /// The plan itself, if it ends and reaches the goal.
    std::optional<Solution> before;
    /// The sleep window that keeps orders after the head from starting before `notBefore`.
    std::optional<SleepRow> pause;
};

/// The levels of the plan's research, units and defences; all 0 if it has none.
[[nodiscard]] PerItem<Byte> OwnGoal(const Plan& plan);

[[nodiscard]] std::variant<PlanTask, SearchRefusal> MakePlanTask(const Plan& plan,
                                                                 const SearchRequest& request);

/// Never returns a worse list than the plan itself.
[[nodiscard]] SearchResult Search(const PlanTask& task, const SearchBudget& budget,
                                  const std::atomic<bool>& stop,
                                  const std::function<void(const SearchProgress&)>& report);

/// The plan with these orders, and with the pause as its first sleep window.
[[nodiscard]] Plan WithOrders(const Plan& plan, const std::vector<Order>& orders,
                              const std::optional<SleepRow>& pause);

}  // namespace tarvelin
