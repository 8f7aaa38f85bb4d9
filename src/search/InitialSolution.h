// A list to begin with where the plan gives none.
#pragma once

#include <atomic>
#include <optional>
#include <vector>

#include "search/SearchTask.h"

namespace tarvelin {

/// A list of exactly the task's orders by the rules that ends: put together row by row, each time
/// by the order that lets it end soonest; if that gets stuck, by moves that let more and more of
/// the task's list start. Head and pinned rows stay where they are. Nothing if none is found, or
/// `stop` was set.
[[nodiscard]] std::optional<std::vector<Order>> FindInitialSolution(const SearchTask& task,
                                                                    const std::atomic<bool>& stop);

}  // namespace tarvelin
