// Finds a list that ends, for a search to start from.
#pragma once

#include <atomic>
#include <optional>
#include <vector>

#include "search/SearchTask.h"

namespace tarvelin {

/// A permutation of the task's orders that keeps the rules and ends. It is built greedily, each row
/// being the order with which the list so far ends soonest; if that gets stuck, the task's own list
/// is repaired by moves that let more of its orders start. Head and pinned rows stay in place.
/// Nothing if none is found or `stop` is set.
[[nodiscard]] std::optional<std::vector<Order>> FindInitialSolution(const SearchTask& task,
                                                                    const std::atomic<bool>& stop);

}  // namespace tarvelin
