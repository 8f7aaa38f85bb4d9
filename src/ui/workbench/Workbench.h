// The workbench: a timeline of the plan and a list that can be edited anywhere.
#pragma once

#include <QPushButton>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "document/Document.h"
#include "plan/ListEdit.h"
#include "ui/services/Environment.h"
#include "ui/services/SecondTimer.h"
#include "ui/workbench/WorkbenchSurface.h"

namespace tarvelin {

class Workbench : public QWidget {
    Q_OBJECT

  public:
    /// The arguments must outlive the window. `leadTime` gives the text that says how many seconds
    /// before a start the alarm sounds.
    Workbench(Document& document, std::function<std::string()> leadTime,
              const Environment& environment);

    void SetPictures(const PerItem<QPixmap>& pictures) { m_surface->SetPictures(pictures); }

    /// Opens the window or brings it to the front. The first time it takes size and place from
    /// `configuration`.
    void Open(const Configuration& configuration);
    /// Size and place, as the configuration keeps them; none if the window was never open.
    [[nodiscard]] Configuration::Values Settings() const;

  protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    struct Command;
    static const std::vector<Command>& Commands();

    void AddCommands();
    void ConnectSignals();
    void FollowDesktop();
    void ShowPlan();
    void EnableCommands();
    void ShowObjections();
    void Tick();

    /// Makes the edited rows those of the plan and chooses `chosen` afterwards, or shows why the
    /// edit isn't allowed.
    void ApplyEdit(const ListEdit& edit, std::vector<std::size_t> chosen);
    /// Applies `step` to the chosen rows, which stay chosen.
    template <class Step>
    void EditChosen(Step step);
    void Undo() { m_document.Undo(); }
    void Redo() { m_document.Redo(); }
    void MoveUp();
    void MoveDown();
    void RemoveChosen();
    void DuplicateChosen();
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
    /// One for each command.
    std::vector<QPushButton*> m_buttons;
    /// The rows to choose once an edit is shown.
    std::optional<std::vector<std::size_t>> m_nextChosen;
    SecondTimer m_timer{QStringLiteral("Tmr_Werkbank"), this};
    bool m_wasOpen = false;
};

}  // namespace tarvelin
