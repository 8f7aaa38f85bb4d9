// The main window: owns the plan and its last run, and passes the user's actions to the logic.
#pragma once

#include <QAction>
#include <QFrame>
#include <QMainWindow>
#include <QScrollArea>
#include <QTimer>
#include <filesystem>
#include <memory>

#include "persistence/Autosave.h"
#include "persistence/Configuration.h"
#include "plan/EditHistory.h"
#include "plan/Plan.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunSimulation.h"
#include "ui/mainwindow/Alarms.h"
#include "ui/mainwindow/Fra_Einstellungen.h"
#include "ui/mainwindow/Fra_Rest.h"
#include "ui/mainwindow/Fra_Skin.h"
#include "ui/mainwindow/Fra_Sleep.h"
#include "ui/mainwindow/Fra_Special.h"
#include "ui/mainwindow/MenuBar.h"
#include "ui/mainwindow/frmAbout.h"
#include "ui/mainwindow/frmDonate.h"
#include "ui/services/Environment.h"
#include "ui/workbench/Workbench.h"

namespace tarvelin {

class frmMain : public QMainWindow {
    Q_OBJECT

  public:
    /// `environment` must outlive the window, as must what it refers to.
    explicit frmMain(const Environment& environment);
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;
    ~frmMain() override;

    /// The plan and the state of the last run or reset.
    [[nodiscard]] const Plan& CurrentPlan() const { return m_plan; }
    [[nodiscard]] const LastRun& CurrentRun() const { return m_run; }

    /// The window's size in pixels, limited to the available size of the screen.
    [[nodiscard]] static QSize SizeOn(const QSize& screen);

    /// Reads the configuration, shows the window, and opens the plan given as argument, the starter
    /// plan or the last plan.
    void Form_Load();
    /// Loads a plan and runs it. `Silent` omits the message about an empty list. False, with a
    /// message, if the file holds no plan.
    bool LoadBauliste(const std::filesystem::path& File, bool Silent);
    /// Runs the plan and shows the results. `Silent` omits the message about an empty list.
    void RunSimulation(bool Silent);
    /// Saves configuration and plan as at exit.
    void SaveNow();

  signals:
    /// The window has closed; nothing more is written.
    void Closed();

  protected:
    /// Enter presses the default button, unless the focused control handles it.
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* target, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void Arrange();
    void FollowScreen();
    void FitToScreen();
    void LoadPictures();
    void ConnectSignals();
    void AddMenus();
    QAction* NewMenuEntry(QWidget* menu, const char* name, const char* text);
    static void NewSeparator(QMenu* menu, const char* name);

    void AddFileMenu();
    void AddInfoMenu();

    void WaitUntilExposed();
    void SetToday();
    void ReadSkin();
    /// False if there is no argument or it can't be loaded.
    bool OpenPlanArgument();
    void OpenFirstPlan();
    /// Whether the last plan was recovered.
    bool RecoverPlan(const std::optional<IniFile>& last);
    void LoadLastPlan(const std::optional<IniFile>& last);
    bool LoadBauliste(const std::optional<IniFile>& iniFile, const std::filesystem::path& File,
                      bool Silent);
    /// The plan is the user's, and saved at exit, from `Working` on.
    enum class Phase { Before, Starting, Working, Closed };
    void Form_Unload(Phase previous);
    void Persist(Phase phase);
    [[nodiscard]] bool IsClosed() const { return m_phase == Phase::Closed; }

    void mnu_DateiNeu_Click();
    void mnu_DateiLaden_Click();
    void mnu_Datei_Speichern_Click();
    void mnu_UpdateCheck_Click();
    void mnuAbout_TV_Click();
    void mnu_DOnate_Click();
    void mnuWorkbench_Click();
    void Cmd_ApplySkin_Click();

    void BringToFront(QWidget& panel);
    void Toggle(Panel& panel);
    void mnuEinstellungen_Click();
    void mnu_SpecialEvents_Click();
    void mnuSkin_Click();
    void mnuSleep_Click();

    void Img_MouseMove(const ItemTile& tile);
    void LV_Bauliste_DragDrop(const QString& Source);
    void Cmd_AddProdaenderungsevent_Click();
    void Cmd_Undo_Click();
    void Cmd_Clear_Click();
    void Cmd_Simulate_Click();
    void Chk_Speedfaktor_Click();
    void ClearList();
    /// Records an edit made in this window for undo. `input` names the control that
    /// was typed into, if any.
    void FinishEdit(std::string_view input = {});
    void Undo();
    void Redo();
    /// Makes these the rows of the list and runs the plan, as one edit. `pause` becomes the first
    /// sleep row.
    void AdoptRows(const std::vector<std::string>& tags, const std::optional<SleepRow>& pause);
    /// Replaces parameters, rows and sleep rows, and runs the plan without message boxes.
    void SetPlan(const PlanSnapshot& snapshot);
    void RunQuietly();
    void KeepReplaced() const;
    void RememberSaved(const std::filesystem::path& file);
    void FillStartDate();
    void RefreshWorkbench();
    void ShowSkin(Byte mode, const std::string& path);
    /// The conditions of a run; nothing, with a message, if the inputs don't allow one.
    std::optional<RunConditions> CheckInputs(bool Silent);
    void ShowNewRow();
    void ShowPlan();
    void ShowRunSoFar();

    const Environment& m_environment;
    Configuration m_configuration;
    Autosave m_autosave;
    QTimer m_Tmr_Autosave{this};
    Plan m_plan;
    EditHistory m_history;
    /// The plan as last loaded from or saved to a file of the user's.
    std::optional<PlanSnapshot> m_saved;
    LastRun m_run;
    ResultTexts m_texts;

    /// Scrolls the surface on a screen that is too small.
    QScrollArea* m_scrollArea;
    QMetaObject::Connection m_screen;
    QWidget* m_surface;
    // In tab order: the panels before the surface that they cover.
    Fra_Einstellungen* m_Fra_Einstellungen;
    Fra_Special* m_Fra_Special;
    Fra_Skin* m_Fra_Skin;
    Fra_Sleep* m_Fra_Sleep;
    Fra_Rest* m_Fra_Rest;
    QFrame* m_TopLine;
    MenuBar* m_menu;
    Alarms* m_alarms;
    /// Windows of their own, created at first use.
    std::unique_ptr<frmAbout> m_frmAbout;
    std::unique_ptr<frmDonate> m_frmDonate;
    std::unique_ptr<Workbench> m_workbench;
    Phase m_phase = Phase::Before;
};

}  // namespace tarvelin
