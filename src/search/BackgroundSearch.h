// A search in a thread of its own.
#pragma once

#include <atomic>
#include <functional>
#include <thread>

#include "search/PlanTask.h"

namespace tarvelin {

/// Starts in the constructor. The destructor stops the search and waits for the thread, a few
/// milliseconds.
class BackgroundSearch {
  public:
    /// Both are called from the search's thread.
    struct Listener {
        std::function<void(const SearchProgress&)> onProgress;
        std::function<void(const SearchResult&)> onDone;
    };

    BackgroundSearch(PlanTask task, const SearchBudget& budget, Listener listener);
    BackgroundSearch(const BackgroundSearch&) = delete;
    BackgroundSearch& operator=(const BackgroundSearch&) = delete;
    ~BackgroundSearch() { Stop(); }

    /// Ends the search with the best list so far; doesn't wait.
    void Stop() { m_stop = true; }

  private:
    std::atomic<bool> m_stop{false};
    PlanTask m_task;
    SearchBudget m_budget;
    Listener m_listener;
    /// Last, so that the thread is joined before the other members are destroyed.
    std::jthread m_thread;
};

}  // namespace tarvelin
