// The workbench: the plan as a picture and as a list that can be edited in the middle.
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

/// Shows a plan that another window owns, and a run of it that it plays for itself. It changes
/// nothing of the plan: it tells what it is to be.
class Workbench : public QWidget {
    Q_OBJECT

  public:
    /// All of them must outlive it.
    /// `before` tells how many seconds before a start the alarm rings, as its input has it.
    Workbench(const Plan& plan, const EditHistory& history, std::function<std::string()> leadTime,
              const Environment& environment);
    Workbench(const Workbench&) = delete;
    Workbench& operator=(const Workbench&) = delete;
    ~Workbench() override;

    /// The plan has changed; plays it anew, if the window is open.
    void RefreshPlan();
    void SetPictures(const PerItem<QPixmap>& pictures);

    /// Opens the window where `configuration` says, the first time, or brings it to the front.
    void Open(const Configuration& configuration);
    /// Size and place for the next start.
    [[nodiscard]] Configuration::Values GeometryValues() const;

  signals:
    /// The rows that the plan is to have, and what is to stand in front of its sleep rows.
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

    /// Carries an edit out, after which these rows are chosen, or tells why it can't be.
    void ApplyEdit(const ListEdit& edit, std::vector<std::size_t> chosen);
    /// Makes one of an edit of the chosen rows, which stay so.
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
    /// In front of which row a new one goes: the first that is chosen, or behind the last.
    [[nodiscard]] std::size_t InsertPosition() const;
    [[nodiscard]] TableModel::Provider ListProvider() const;
    [[nodiscard]] std::string CellText(std::size_t row, int column) const;

    const Plan& m_plan;
    const EditHistory& m_history;
    std::function<std::string()> m_leadTime;
    const Environment& m_environment;
    /// Nothing, with the reason in the strip, if the plan can't be run.
    std::optional<RunTrace> m_trace;
    /// The duration before the last step that was done or taken back, and how many lay behind the
    /// plan then.
    std::optional<Long> m_durationBefore;
    std::size_t m_steps = 0;
    std::optional<Long> m_durationChange;
    /// Which rows are to be chosen when the plan comes back from an edit.
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
