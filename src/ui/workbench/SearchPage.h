// The panel of the search.
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

#include "plan/Plan.h"
#include "search/BackgroundSearch.h"
#include "ui/services/Environment.h"
#include "ui/workbench/ConvergencePlot.h"

namespace tarvelin {

/// Searches for a faster plan while the window lives on.
class SearchPage : public QWidget {
    Q_OBJECT

  public:
    /// `plan` and `environment` must outlive it; `chosen` gives the rows that are chosen, from 0.
    SearchPage(const Plan& plan, const Environment& environment,
               std::function<std::vector<std::size_t>()> chosen, QWidget* parent);

    /// Ends a search under way; what it has found stays.
    void StopSearch();

  signals:
    /// The player wants what was found: its rows, and the pause in front of the sleep rows.
    void ResultAccepted(const std::vector<std::string>& tags, const std::optional<SleepRow>& pause);
    void Notice(const std::string& text);
    /// Of the search's own, by its number.
    void ProgressReceived(int number, const SearchProgress& progress);
    void ResultReceived(int number, const SearchResult& result);

  private:
    void AddInputs(QFormLayout& form);
    void ConnectSignals();
    [[nodiscard]] SearchRequest MakeRequest() const;
    [[nodiscard]] SearchBudget MakeBudget() const;
    void StartSearch();
    void AcceptResult();
    void ShowProgress(const SearchProgress& progress);
    void ShowSearchResult(const SearchResult& result);
    [[nodiscard]] std::string ReportText() const;
    void EnableControls();

    /// What was searched, and what came of it.
    struct Searched {
        Plan plan;
        PlanTask task;
        std::optional<Solution> best;
    };

    const Plan& m_plan;
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
    /// Which search the news are of.
    int m_number = 0;
    bool m_running = false;
    /// Ends before what it tells.
    std::unique_ptr<BackgroundSearch> m_search;
};

}  // namespace tarvelin
