// What a find changes in the plan, for the player to look at before he takes it over.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "plan/Plan.h"
#include "search/PlanTask.h"

namespace tarvelin {

/// Figures of a plan or a find.
struct FindFigures {
    /// Seconds.
    Long duration = 0;
    int sittings = 0;
    /// Units per hour at the end of the run.
    PerResource<std::int64_t> rates{};
};

/// An order in a row of the list.
struct ListedOrder {
    Order order;
    /// "Metallmine 3".
    std::string text;

    friend bool operator==(const ListedOrder&, const ListedOrder&) = default;
};

/// A row in which plan and find have different orders. A side that is shorter has none.
struct DifferentRow {
    std::size_t row = 0;
    std::optional<ListedOrder> now;
    std::optional<ListedOrder> find;
};

struct FindSummary {
    /// Nothing if the plan never ends or misses the goal.
    std::optional<FindFigures> before;
    FindFigures after;
    /// How many orders of an item more the find has; negative for fewer.
    PerItem<int> more{};
    /// All of them.
    std::vector<DifferentRow> rows;

    [[nodiscard]] bool DiffersFromPlan() const { return !rows.empty(); }
    /// Seconds that the find is faster; nothing without `before`.
    [[nodiscard]] std::optional<Long> Gain() const {
        return before ? std::optional(before->duration - after.duration) : std::nullopt;
    }
};

/// `plan` is the one that `task` was made for.
[[nodiscard]] FindSummary SummaryOf(const Plan& plan, const PlanTask& task, const Solution& find);

}  // namespace tarvelin
