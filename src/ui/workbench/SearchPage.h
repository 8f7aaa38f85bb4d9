// The page that searches for better plans.
#pragma once

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "document/Document.h"
#include "search/BackgroundSearch.h"
#include "simulation/RunTrace.h"
#include "ui/services/Environment.h"
#include "ui/workbench/ConvergencePlot.h"
#include "ui/workbench/FindPanel.h"
#include "ui/workbench/GoalPicker.h"
#include "ui/workbench/SearchOptions.h"

namespace tarvelin {

/// The search runs in the background; the plan can be edited meanwhile.
class SearchPage : public QWidget {
    Q_OBJECT

  public:
    /// `document` and `environment` must outlive the page. `chosen` gives the chosen rows, counted
    /// from 0.
    SearchPage(Document& document, const Environment& environment,
               std::function<std::vector<std::size_t>()> chosen, QWidget* parent);

    void SetPictures(const PerItem<QPixmap>& pictures);
    /// Call it when the palette or the font has changed.
    void FollowAppearance();
    /// Call it when the plan, the chosen rows or the minute have changed.
    void ShowEffects() { m_options->ShowEffects(); }

    void StartSearch();
    /// Ends a running search; its best solution so far stays.
    void StopSearch();
    /// Puts the find into the plan.
    void AcceptFind();
    void CompareFind();
    [[nodiscard]] bool IsRunning() const { return m_running; }
    [[nodiscard]] bool HasFind() const { return !m_running && m_findTrace.has_value(); }
    /// The run of the find, if there is one that differs from the plan. `StateChanged` tells when
    /// it comes or goes.
    [[nodiscard]] const std::optional<RunTrace>& FindTrace() const { return m_findTrace; }

  signals:
    void Notice(const std::string& text);
    /// A search has begun or ended, or its find is gone.
    void StateChanged();
    void FindToCompare(const RunTrace& find);
    /// The find has taken the place of the plan, whose run was `before`.
    void TakenOver(const RunTrace& before);
    /// From the search's thread; `id` is that of the search.
    void ProgressReceived(int id, const SearchProgress& progress);
    void ResultReceived(int id, const SearchResult& result);

  private:
    void Arrange();
    void ConnectSignals();
    [[nodiscard]] bool HasGoal() const { return m_task->currentIndex() == 1; }
    void ShowProgress(const SearchProgress& progress);
    void ShowSearchResult(const SearchResult& result);
    void ShowTries(std::uint64_t tries, std::uint64_t total);
    void ForgetFind();
    void EnableControls();

    /// The plan and task of the last search, and the solution to accept.
    struct Searched {
        Plan plan;
        PlanTask task;
        std::optional<Solution> best;
    };

    Document& m_document;
    QComboBox* m_task;
    GoalPicker* m_goal;
    SearchOptions* m_options;
    QPushButton* m_searchButton;
    QPushButton* m_stopButton;
    TypeLabel* m_triesLabel;
    QProgressBar* m_progressBar;
    ConvergencePlot* m_plot;
    QLabel* m_stateLabel;
    FindPanel* m_find;
    std::optional<Searched> m_searched;
    std::optional<RunTrace> m_findTrace;
    QElapsedTimer m_elapsed;
    /// The id of the last search.
    int m_id = 0;
    bool m_running = false;
    /// Last, so that its thread ends before the members that it reports to.
    std::unique_ptr<BackgroundSearch> m_search;
};

}  // namespace tarvelin
