// Small plans and their proved optimum, for the tests and benchmarks of the search.
#pragma once

#include <optional>

#include "search/SearchTask.h"

namespace tarvelin {

/// A random plan of 8 to 10 orders that the rules of the list accept: hot and cold planets, quick
/// and slow players, both speeds, with and without nights. One number, one plan.
[[nodiscard]] SearchTask SmallPlan(unsigned seed);

/// The shortest duration of all orders of a task's orders, by depth-first branch and bound.
/// Nothing if no order of them ends.
[[nodiscard]] std::optional<Long> ProvenDuration(const SearchTask& task);

}  // namespace tarvelin
