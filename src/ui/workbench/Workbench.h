// The workbench: a timeline of the plan and a list that can be edited anywhere.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "document/Document.h"
#include "plan/ListEdit.h"
#include "ui/services/Environment.h"
#include "ui/services/SecondTimer.h"
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

    /// Opens the window or brings it to the front. The first time it takes size and place from
    /// `configuration`.
    void OpenWindow(const Configuration& configuration);
    /// Size and place, as the configuration keeps them; none if the window was never open.
    [[nodiscard]] Configuration::Values Settings() const;

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    struct ActionRow;
    static const std::vector<ActionRow>& ActionRows();

    void AddActions();
    void AddRecentFiles(QMenu& menu);
    void AddPageActions(QMenu& menu);
    void ConnectSignals();
    void FollowDesktop();
    void ShowPlan();
    void ShowTitle();
    void EnableActions();
    void ShowObjections();
    void Tick();

    /// Makes the edited rows those of the plan and chooses `chosen` afterwards, or shows why the
    /// edit isn't allowed.
    void ApplyEdit(const ListEdit& edit, std::vector<std::size_t> chosen);
    /// Applies `step` to the chosen rows, which stay chosen.
    template <class Step>
    void EditChosen(Step step);
    void New() { m_document.New(); }
    void Open();
    void Save();
    void SaveAs();
    void SaveTo(const std::filesystem::path& file);
    void CloseWindow() { close(); }
    void ShowWholePlan();
    void Undo() { m_document.Undo(); }
    void Redo() { m_document.Redo(); }
    void MoveUp();
    void MoveDown();
    void RemoveChosen();
    void DuplicateChosen();
    void ChooseAll();
    void InsertRow(const Order& order, std::size_t before);
    void SavePicture();
    void CopyTimetable();
    void SaveCalendar();
    void SaveBytes(const std::filesystem::path& file, const std::string& bytes);
    /// New rows go in front of the first chosen row, or to the end.
    [[nodiscard]] std::size_t InsertPosition() const;

    Document& m_document;
    std::function<std::string()> m_leadTime;
    const Environment& m_environment;
    WorkbenchSurface* m_surface;
    WorkbenchStatusBar* m_status;
    /// One for each row of the table.
    std::vector<QAction*> m_actions;
    /// The rows to choose once an edit is shown.
    std::optional<std::vector<std::size_t>> m_nextChosen;
    SecondTimer m_timer{QStringLiteral("Tmr_Werkbank"), this};
    bool m_wasOpen = false;
};

}  // namespace tarvelin
