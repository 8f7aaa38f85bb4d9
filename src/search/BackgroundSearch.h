// A search that runs beside its caller.
#pragma once

#include <atomic>
#include <functional>
#include <thread>

#include "search/PlanTask.h"

namespace tarvelin {

/// Begins with its construction; its end stops the search and waits the few milliseconds that this
/// takes.
class BackgroundSearch {
  public:
    /// Both are called from another thread than the caller's.
    struct Listener {
        std::function<void(const SearchProgress&)> onProgress;
        std::function<void(const SearchResult&)> onDone;
    };

    BackgroundSearch(PlanTask task, const SearchBudget& budget, Listener listener);
    BackgroundSearch(const BackgroundSearch&) = delete;
    BackgroundSearch& operator=(const BackgroundSearch&) = delete;
    ~BackgroundSearch() { Stop(); }

    /// Ends the search with the best so far.
    void Stop() { m_stop = true; }

  private:
    std::atomic<bool> m_stop{false};
    PlanTask m_task;
    SearchBudget m_budget;
    Listener m_listener;
    /// The last member: it ends before the others go.
    std::jthread m_thread;
};

}  // namespace tarvelin
