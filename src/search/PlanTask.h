// From a plan and a player's wish to a task of the search, and back to a plan.
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
    /// What has to stand at the end, "GW2 FV2 WKT1"; "plan" for the plan's own research, units and
    /// defences. Nothing: the plan's orders in another order.
    std::optional<std::string> goal{};
    /// Rows that keep their place, from 1, first and last of each stretch.
    std::vector<std::pair<std::size_t, std::size_t>> pinnedRanges{};
    /// Production rows may move too.
    bool moveProduction = false;
    /// Orders that start before are played already.
    std::optional<DateTime> notBefore{};
};

/// Why there is nothing to search.
struct SearchRefusal {
    std::string text;
    /// The wish makes no sense for any plan, or not for a list of this length.
    bool wrongCall = false;
};

struct PlanTask {
    SearchTask task;
    /// What the plan itself is worth, if it ends and has what is wanted.
    std::optional<Solution> before;
    /// The sleep row that keeps the others from starting too early.
    std::optional<SleepRow> pause;
};

[[nodiscard]] std::variant<PlanTask, SearchRefusal> MakePlanTask(const Plan& plan,
                                                                 const SearchRequest& request);

/// The search, and never less than the plan itself.
[[nodiscard]] SearchResult Search(const PlanTask& task, const SearchBudget& budget,
                                  const std::atomic<bool>& stop,
                                  const std::function<void(const SearchProgress&)>& report);

/// The plan with another list, and with the pause in front of its sleep rows.
[[nodiscard]] Plan WithOrders(const Plan& plan, const std::vector<Order>& orders,
                              const std::optional<SleepRow>& pause);

}  // namespace tarvelin
