// The page that searches for better plans.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "document/Document.h"
#include "search/BackgroundSearch.h"
#include "ui/services/Environment.h"
#include "ui/workbench/ConvergencePlot.h"

namespace tarvelin {

/// The search runs in the background; the plan can be edited meanwhile.
class SearchPage : public QWidget {
    Q_OBJECT

  public:
    /// `document` and `environment` must outlive the page. `chosen` gives the chosen rows, counted
    /// from 0.
    SearchPage(Document& document, const Environment& environment,
               std::function<std::vector<std::size_t>()> chosen, QWidget* parent);

    void StartSearch();
    /// Ends a running search; its best solution so far stays.
    void StopSearch();
    /// Puts the find into the plan.
    void AcceptResult();
    [[nodiscard]] bool IsRunning() const { return m_running; }
    [[nodiscard]] bool HasFind() const { return !m_running && m_searched && m_searched->best; }

  signals:
    /// A search has begun or ended, or its find is gone.
    void StateChanged();
    void Notice(const std::string& text);
    /// From the search's thread; `id` is that of the search.
    void ProgressReceived(int id, const SearchProgress& progress);
    void ResultReceived(int id, const SearchResult& result);

  private:
    void AddInputs(QFormLayout& form);
    void ConnectSignals();
    [[nodiscard]] SearchRequest MakeRequest() const;
    [[nodiscard]] SearchBudget MakeBudget() const;
    void ShowProgress(const SearchProgress& progress);
    void ShowSearchResult(const SearchResult& result);
    void EnableControls();

    /// The plan and task of the last search, and the solution to accept.
    struct Searched {
        Plan plan;
        PlanTask task;
        std::optional<Solution> best;
    };

    Document& m_document;
    const Environment& m_environment;
    std::function<std::vector<std::size_t>()> m_chosen;

    QComboBox* m_task;
    QLineEdit* m_goal;
    QCheckBox* m_pinned;
    QCheckBox* m_free;
    QCheckBox* m_fromNow;
    QCheckBox* m_sittings;
    QDoubleSpinBox* m_slack;
    QSpinBox* m_tries;
    QPushButton* m_searchButton;
    QPushButton* m_stopButton;
    QPushButton* m_acceptButton;
    QProgressBar* m_progressBar;
    ConvergencePlot* m_plot;
    QLabel* m_reportLabel;
    std::optional<Searched> m_searched;
    /// The id of the last search.
    int m_id = 0;
    bool m_running = false;
    /// Last, so that its thread ends before the members that it reports to.
    std::unique_ptr<BackgroundSearch> m_search;
};

}  // namespace tarvelin
