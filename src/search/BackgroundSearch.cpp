// Runs a search in a thread.
#include "search/BackgroundSearch.h"

#include <utility>

namespace tarvelin {

BackgroundSearch::BackgroundSearch(PlanTask task, const SearchBudget& budget, Listener listener)
    : m_task(std::move(task)), m_budget(budget), m_listener(std::move(listener)), m_thread([this] {
          m_listener.onDone(Search(m_task, m_budget, m_stop, m_listener.onProgress));
      }) {}

}  // namespace tarvelin
