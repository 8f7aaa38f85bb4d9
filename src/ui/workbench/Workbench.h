// The workbench: a timeline of the plan and a list that can be edited anywhere.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "document/Document.h"
#include "ui/services/Environment.h"
#include "ui/services/SecondTimer.h"
#include "ui/workbench/HelpWindow.h"
#include "ui/workbench/RowEditor.h"
#include "ui/workbench/WorkbenchStatusBar.h"
#include "ui/workbench/WorkbenchSurface.h"

namespace tarvelin {

/// Its actions are rows of one table: menus, tool bar, shortcuts and the list's context menu come
/// from it.
class Workbench : public QMainWindow {
    Q_OBJECT

  public:
    /// The arguments must outlive the window. `leadTime` gives the text that says how many seconds
    /// before a start the alarm sounds.
    Workbench(Document& document, std::function<std::string()> leadTime,
              const Environment& environment);

    void SetPictures(const PerItem<QPixmap>& pictures) { m_surface->SetPictures(pictures); }

    /// Opens the window or brings it to the front. The first time it takes size, place and columns
    /// from `configuration`.
    void OpenWindow(const Configuration& configuration);
    /// What the configuration keeps of the window; nothing if it was never open.
    [[nodiscard]] Configuration::Values Settings() const;

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    struct ActionRow;
    static const std::vector<ActionRow>& ActionRows();

    void AddActions();
    void AddRecentFiles(QMenu& menu);
    void AddColumns(QMenu& menu);
    void AddPageActions(QMenu& menu);
    void ShowIcons(const WorkbenchColors& colors);
    void ConnectSignals();
    void FollowDesktop();
    void ShowPlan();
    void ShowTitle();
    void EnableActions();
    void ShowRequest();
    void AcceptRequest();
    void ShowRefusal(const QString& what, const EditObjection& objection);
    void Tick();
    void RememberNights();
    /// How many days later the plan starts than when its nights were entered.
    [[nodiscard]] int DaysMoved() const;
    void InsertRow(const Order& order);
    void InsertPicture(const QString& picture, std::size_t before);

    // What the actions do.
    void New() { m_document.New(); }
    void Open();
    void Save();
    void SaveAs();
    void SaveTo(const std::filesystem::path& file);
    void CloseWindow() { close(); }
    void Undo() { m_document.Undo(); }
    void Redo() { m_document.Redo(); }
    void MoveUp() { m_editor.MoveUp(); }
    void MoveDown() { m_editor.MoveDown(); }
    void DuplicateChosen() { m_editor.DuplicateChosen(); }
    void RemoveChosen() { m_editor.RemoveChosen(); }
    void ChooseAll() { m_surface->List().selectAll(); }
    void ShowWholePlan() { m_surface->Timeline().ShowAll(); }
    void OpenGuide();
    void StartSearch();
    void StopSearch() { m_surface->Search().StopSearch(); }
    void CompareFind() { m_surface->Search().CompareFind(); }
    void AcceptFind() { m_surface->Search().AcceptFind(); }
    void SavePoster();
    void SaveSection();
    void CopyTimetable();
    void SaveCalendar();

    Document& m_document;
    std::function<std::string()> m_leadTime;
    const Environment& m_environment;
    WorkbenchSurface* m_surface;
    WorkbenchStatusBar* m_status;
    QToolBar* m_toolBar;
    /// Created at first use.
    HelpWindow* m_guide = nullptr;
    RowEditor m_editor;
    /// One for each row of the table.
    std::vector<QAction*> m_actions;
    OrderMarks m_marks;
    /// Sleep tables that the plan has had, each with the start that it was entered for. Undo brings
    /// back both.
    std::vector<std::pair<SleepTable, DateTime>> m_startsOfNights;
    SecondTimer m_timer{QStringLiteral("Tmr_Werkbank"), this};
    bool m_wasOpen = false;
};

}  // namespace tarvelin
