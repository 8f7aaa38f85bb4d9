// Searches for a faster list by simulated annealing.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "search/Score.h"
#include "search/SearchTask.h"

namespace tarvelin {

/// The same figures give the same list, whatever the number of threads.
struct SearchBudget {
    /// Tries in all, rounded down to whole chains of `kChainLength`, at least one.
    std::uint64_t tries = kDefaultTries;
    std::uint64_t seed = 1;
    unsigned threads = 1;
    /// How many percent longer than the fastest a list may take if that saves sittings.
    double slackPercent = 0;

    static constexpr std::uint64_t kDefaultTries = 640'000;
    static constexpr std::uint64_t kChainLength = 20'000;
};

/// A list that ends, with its score.
struct Solution {
    std::vector<Order> orders;
    /// Which of the orders are pinned.
    std::vector<bool> pinned;
    Score score;
};

struct SearchProgress {
    Long bestDuration = 0;
    /// Seconds that it is faster than the initial list.
    Long gain = 0;
    std::uint64_t tries = 0;
    std::uint64_t totalTries = 0;
    /// The latest that was started, from 1.
    std::uint64_t chain = 0;
    double triesPerSecond = 0;
    /// Seconds since the best list was found.
    double secondsSinceBest = 0;
};

struct SearchResult {
    /// Nothing if no list that ends was found.
    std::optional<Solution> best;
    /// Fewer than `totalTries` if the search was stopped.
    std::uint64_t tries = 0;
    std::uint64_t totalTries = 0;
};

/// Nothing if the list doesn't end.
[[nodiscard]] std::optional<Solution> Evaluate(const SearchTask& task,
                                               const std::vector<Order>& orders);

/// Searches until all tries are done, or ends within a few milliseconds once `stop` is set. Calls
/// `report` from the caller's thread, at most ten times a second.
[[nodiscard]] SearchResult Search(const SearchTask& task, const SearchBudget& budget,
                                  const std::atomic<bool>& stop,
                                  const std::function<void(const SearchProgress&)>& report);

}  // namespace tarvelin
