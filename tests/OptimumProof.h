// Makes small plans and proves their optimum, for the tests and benchmarks of the search.
#pragma once

#include <optional>

#include "search/SearchTask.h"

namespace tarvelin {

/// A random plan of 8 to 10 orders that keeps the rules of the list: hot and cold planets, short
/// and long click buffers, both speeds, with and without nights. A seed always gives the same plan.
[[nodiscard]] SearchTask SmallPlan(unsigned seed);

/// The shortest duration among all sequences of a task's orders, by depth-first branch and bound.
/// Nothing if none of them ends.
[[nodiscard]] std::optional<Long> ProvenDuration(const SearchTask& task);

}  // namespace tarvelin
