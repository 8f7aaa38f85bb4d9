// The workbench: a timeline of the plan and a list that can be edited anywhere.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "persistence/Configuration.h"
#include "plan/EditHistory.h"
#include "plan/ListEdit.h"
#include "plan/Plan.h"
#include "simulation/RunTrace.h"
#include "ui/services/Environment.h"
#include "ui/services/SecondTimer.h"
#include "ui/workbench/ComparisonPage.h"
#include "ui/workbench/ItemPalette.h"
#include "ui/workbench/OrderListView.h"
#include "ui/workbench/SearchPage.h"
#include "ui/workbench/TimelineView.h"

namespace tarvelin {

/// Shows a plan that another window owns, and a run of its own. Never edits the plan: it emits the
/// rows it wants.
class Workbench : public QWidget {
    Q_OBJECT

  public:
    /// The arguments must outlive the window. `leadTime` gives the text that says how many seconds
    /// before a start the alarm sounds.
    Workbench(const Plan& plan, const EditHistory& history, std::function<std::string()> leadTime,
              const Environment& environment);
    Workbench(const Workbench&) = delete;
    Workbench& operator=(const Workbench&) = delete;
    ~Workbench() override;

    /// Call it when the plan has changed. Runs the plan again if the window is visible.
    void RefreshPlan();
    void SetPictures(const PerItem<QPixmap>& pictures);

    /// Opens the window or brings it to the front. The first time it takes size and place from
    /// `configuration`.
    void Open(const Configuration& configuration);
    /// Size and place for the next start; none if the window was never open.
    [[nodiscard]] Configuration::Values GeometryValues() const;

  signals:
    /// The rows that the plan should have, and a sleep row to put in front of the others.
    void ListEdited(const std::vector<std::string>& tags, const std::optional<SleepRow>& pause);
    void UndoRequested();
    void RedoRequested();

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void Arrange();
    void AddPages();
    QPushButton* NewCommandButton(const char* name, const char* text, const QKeySequence& key,
                                  void (Workbench::*handler)());
    void ConnectSignals();
    void FollowDesktop();
    void SetMessageHeight();
    void PlayPlan();
    void ShowFooter();
    void ShowChoice();
    void ShowObjections();
    void ShowStatusAt(std::optional<SimTime> moment);
    void Tick();
    void ShowNotice(const std::string& text);

    /// Emits the edited rows and chooses `chosen` afterwards, or shows why the edit isn't allowed.
    void ApplyEdit(const ListEdit& edit, std::vector<std::size_t> chosen);
    /// Applies `step` to the chosen rows, which stay chosen.
    template <class Step>
    void EditChosen(Step step);
    void MoveUp();
    void MoveDown();
    void RemoveChosen();
    void DuplicateChosen();
    void InsertRow(std::string_view tag, std::size_t before);
    void SavePicture();
    void CopyTimetable();
    void SaveCalendar();
    void SaveBytes(const std::filesystem::path& file, const std::string& bytes);
    /// New rows go in front of the first chosen row, or to the end.
    [[nodiscard]] std::size_t InsertPosition() const;
    [[nodiscard]] TableModel::Provider ListProvider() const;
    [[nodiscard]] std::string CellText(std::size_t row, int column) const;

    const Plan& m_plan;
    const EditHistory& m_history;
    std::function<std::string()> m_leadTime;
    const Environment& m_environment;
    /// Nothing if the plan can't be run.
    std::optional<RunTrace> m_trace;
    /// In seconds, before the last edit, undo or redo.
    std::optional<Long> m_durationBefore;
    /// The history's step count at the last run, by which an edit, undo or redo is noticed.
    std::size_t m_steps = 0;
    std::optional<Long> m_durationChange;
    /// The rows to choose once the plan has taken over an edit.
    std::optional<std::vector<std::size_t>> m_nextChosen;

    QLabel* m_messageLabel;
    OrderListView* m_list;
    QTabWidget* m_pages;
    ItemPalette* m_palette;
    SearchPage* m_searchPage;
    ComparisonPage* m_comparisonPage;
    TimelineView* m_timeline;
    QLabel* m_statusLabel;
    QLabel* m_durationLabel;
    QLabel* m_changeLabel;
    QLabel* m_nextOrderLabel;
    QPushButton* m_undoButton = nullptr;
    QPushButton* m_redoButton = nullptr;
    std::vector<QPushButton*> m_commands;
    SecondTimer m_timer{QStringLiteral("Tmr_Werkbank"), this};
    bool m_wasOpen = false;
};

}  // namespace tarvelin
