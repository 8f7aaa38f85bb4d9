// The search for a faster plan.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "search/Score.h"
#include "search/SearchTask.h"

namespace tarvelin {

/// How much is searched. The same figures give the same list, with however many threads.
struct SearchBudget {
    /// Tries in all; whole chains of `kChainLength` each, at least one.
    std::uint64_t tries = kDefaultTries;
    std::uint64_t seed = 1;
    unsigned threads = 1;
    /// A list may take so many percent longer than the fastest one if that saves sittings.
    double slackPercent = 0;

    static constexpr std::uint64_t kDefaultTries = 640'000;
    static constexpr std::uint64_t kChainLength = 20'000;
};

/// A list that ends, and what it is worth.
struct Solution {
    std::vector<Order> orders;
    /// Which of them are pinned.
    std::vector<bool> pinned;
    Score score;
};

/// How far a search has come.
struct SearchProgress {
    Long bestDuration = 0;
    /// Seconds that it is better than the list to begin with.
    Long gain = 0;
    std::uint64_t tries = 0;
    std::uint64_t totalTries = 0;
    /// Of those that are under way or done, from 1.
    std::uint64_t chain = 0;
    double triesPerSecond = 0;
    /// Seconds since the best list was found.
    double secondsSinceBest = 0;
};

struct SearchResult {
    /// The best list; nothing if none was found that ends.
    std::optional<Solution> best;
    /// Fewer than there were to be if the search was stopped.
    std::uint64_t tries = 0;
    std::uint64_t totalTries = 0;
};

/// What the orders of a list are worth; nothing if it doesn't end.
[[nodiscard]] std::optional<Solution> Evaluate(const SearchTask& task,
                                               const std::vector<Order>& orders);

/// Searches until the tries are done or `stop` is set, which takes a few milliseconds. `report` is
/// called from the caller's thread, at most ten times a second.
[[nodiscard]] SearchResult Search(const SearchTask& task, const SearchBudget& budget,
                                  const std::atomic<bool>& stop,
                                  const std::function<void(const SearchProgress&)>& report);

}  // namespace tarvelin
