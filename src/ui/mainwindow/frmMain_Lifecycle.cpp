// Start and end of the main window, and its plan files.
#include "ui/mainwindow/frmMain.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QWindow>
#include <chrono>
#include <utility>

#include "persistence/PlanFile.h"
#include "ui/mainwindow/ApplySkin.h"
#include "ui/mainwindow/WindowMessages.h"

namespace tarvelin {

void frmMain::Form_Load() {
    if (IsClosed()) {
        return;
    }
    m_Fra_Skin->FillSkinList();
    m_alarms->ReadConfiguration();
    ReadSkin();
    m_phase = Phase::Starting;
    show();
    connect(windowHandle(), &QWindow::screenChanged, this, &frmMain::FollowScreen);
    FollowScreen();
    WaitUntilExposed();
    if (m_environment.startNotice) {
        m_environment.dialogs.Show(*m_environment.startNotice);
    }
    if (!IsClosed() && !OpenPlanArgument() && !IsClosed()) {
        OpenFirstPlan();
    }
    if (!IsClosed()) {
        m_phase = Phase::Working;
        m_history.Begin(SnapshotOf(m_plan));
        RefreshWorkbench();
        constexpr std::chrono::seconds kInterval(4);
        m_Tmr_Autosave.start(kInterval);
    }
}

// `Write` keeps a copy of the last session's plan.
bool frmMain::OpenPlanArgument() {
    const std::filesystem::path& file = m_environment.planArgument;
    if (file.empty() || !LoadBauliste(file, false) || IsClosed()) {
        return false;
    }
    if (m_saved) {
        m_autosave.MarkStoredInFile(m_plan);
    }
    m_autosave.Write(m_plan);
    return true;
}

// The file of the last plan is left alone until the user has said whether he wants it.
void frmMain::OpenFirstPlan() {
    const bool firstStart = m_configuration.IsOn(Configuration::kFirststart);
    const bool wasPresent = FileExists(m_autosave.PlanPath(), m_environment.files);
    const auto last = IniFile::Load(m_autosave.PlanPath(), m_environment.files);
    const auto starterPlan = m_environment.programFolder / "saves" / "basic.tvf";
    const bool loaded = firstStart && FileExists(starterPlan, m_environment.files) &&
                        LoadBauliste(starterPlan, false);
    const bool recovered = wasPresent && RecoverPlan(last);
    if (IsClosed()) {
        return;
    }
    const bool kept = !loaded || recovered || m_autosave.Write(m_plan);
    m_autosave.MarkWritten(m_plan);
    if (firstStart && kept) {
        DeleteFile(starterPlan, m_environment.files);
        m_saved.reset();
        m_configuration.Write({{Configuration::kFirststart, "0"}});
    }
}

// A box shown before the window has its place would appear beside it.
void frmMain::WaitUntilExposed() {
    constexpr int kLongestWait = 500;
    constexpr int kSlice = 10;
    QDeadlineTimer deadline(kLongestWait);
    while (!windowHandle()->isExposed() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kSlice);
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

// A web skin is loaded from disk; nothing is fetched at the start.
void frmMain::ReadSkin() {
    const Byte mode = m_configuration.SkinMode();
    m_Fra_Skin->txt_Pfad->setText(ToQString(m_configuration.Read(Configuration::kWebPath)));
    m_Fra_Skin->ChooseSource(mode);
    ShowSkin(mode == kWebSkin ? kLocalSkin : mode, m_configuration.Read(Configuration::kPath));
}

bool frmMain::RecoverPlan(const std::optional<IniFile>& last) {
    const auto decision = DecideRecovery(m_configuration);
    if (IsClosed() || decision == Recovery::Never) {
        return false;
    }
    if (decision == Recovery::Always) {
        LoadLastPlan(last);
        return true;
    }
    const auto ask = [this](const char* text) {
        return m_environment.dialogs.Ask(
            {.text = text, .title = "Wiederherstellen...", .icon = MessageIcon::Question});
    };
    const bool yes = ask("Möchtest du die letzte Bauliste wiederherstellen?");
    const bool always = ask("Bei jedem Start so verfahren?");
    if (IsClosed()) {
        // The program was closed: that is no answer.
        return false;
    }
    if (always) {
        m_configuration.Write({{Configuration::kAlwaysDoSo, "1"}});
    }
    if (yes) {
        LoadLastPlan(last);
    }
    m_configuration.Write({{Configuration::kRecover, yes ? "1" : "0"}});
    return yes;
}

void frmMain::LoadLastPlan(const std::optional<IniFile>& last) {
    LoadBauliste(last, m_autosave.PlanPath(), true);
    m_Fra_Einstellungen->hide();
}

void frmMain::closeEvent(QCloseEvent* event) {
    const Phase previous = std::exchange(m_phase, Phase::Closed);
    if (previous != Phase::Closed) {
        m_environment.dialogs.CloseAll();
    }
    if (previous == Phase::Starting || previous == Phase::Working) {
        Form_Unload(previous);
    }
    QMainWindow::closeEvent(event);
    emit Closed();
}

void frmMain::Form_Unload(Phase previous) {
    m_Tmr_Autosave.stop();
    m_alarms->Silence();
    m_environment.fetcher.Abort();
    Persist(previous);
    if (m_workbench) {
        m_workbench->hide();
    }
}

void frmMain::SaveNow() {
    if (m_phase == Phase::Starting || m_phase == Phase::Working) {
        Persist(m_phase);
    }
}

void frmMain::Persist(Phase phase) {
    // Before, the plan isn't the user's.
    const bool withPlan = phase == Phase::Working;
    const Byte source = m_Fra_Skin->ChosenSource();
    const std::string path = source == kStandardSkin ? "~"
                             : source == kWebSkin
                                 ? kWebSkinFolder
                                 : m_Fra_Skin->Comb_Skins->currentText().toStdString();
    const auto checkBox = [](const QCheckBox& box) { return box.isChecked() ? "1" : "0"; };
    Configuration::Values values{
        {Configuration::kMode, std::to_string(source)},
        {Configuration::kPath, path},
        {Configuration::kWebPath, m_Fra_Skin->txt_Pfad->text().toStdString()},
        {Configuration::kBaulistenwecker, checkBox(*m_Fra_Rest->BuildAlarmSwitch())},
        {Configuration::kSchlafzeitenwecker, checkBox(*m_Fra_Sleep->Chk_Schlafzeitenwecker)}};
    if (withPlan) {
        values.emplace_back(Configuration::kItemCount,
                            std::to_string(m_plan.LV_Bauliste.Orders().Size()));
    }
    if (m_workbench) {
        const auto geometry = m_workbench->GeometryValues();
        values.insert(values.end(), geometry.begin(), geometry.end());
    }
    m_configuration.Write(values);
    if (withPlan) {
        m_autosave.WriteAtExit(m_plan);
    }
}

void frmMain::mnu_DateiNeu_Click() {
    KeepReplaced();
    m_run.ResetSimulation(m_plan.parameters);
    m_texts.AfterReset();
    m_Fra_Rest->ShowSchedule();
    ClearList();
    m_Fra_Einstellungen->show();
    m_Fra_Skin->hide();
    m_Fra_Sleep->hide();
    SetToday();
    FinishEdit();
    m_alarms->ReadConfiguration();
}

void frmMain::mnu_DateiLaden_Click() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Load);
    if (!file.empty()) {
        LoadBauliste(file, false);
    }
}

void frmMain::mnu_Datei_Speichern_Click() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Save);
    if (file.empty()) {
        return;
    }
    if (SaveBauliste(file, m_plan, m_environment.files)) {
        RememberSaved(file);
    } else {
        m_environment.dialogs.Show(SaveErrorMessage());
    }
}

// Files that the program itself overwrites don't count.
void frmMain::RememberSaved(const std::filesystem::path& file) {
    m_saved = m_autosave.IsOwnFile(file) ? std::nullopt : std::optional(SnapshotOf(m_plan));
}

void frmMain::KeepReplaced() const {
    if (m_phase == Phase::Working && m_saved != SnapshotOf(m_plan)) {
        m_autosave.KeepReplaced(m_plan);
    }
}

bool frmMain::LoadBauliste(const std::filesystem::path& File, bool Silent) {
    return LoadBauliste(IniFile::Load(File, m_environment.files), File, Silent);
}

bool frmMain::LoadBauliste(const std::optional<IniFile>& iniFile, const std::filesystem::path& File,
                           bool Silent) {
    if (!iniFile) {
        m_environment.dialogs.Show(LoadErrorMessage());
        return false;
    }
    KeepReplaced();
    ClearList();
    WindowMessages messages(
        [this] {
            ShowPlan();
            RefreshWorkbench();
        },
        m_environment.dialogs);
    const bool loaded = ReadPlan(*iniFile, m_plan, m_run.conditions, messages);
    if (loaded) {
        ShowPlan();
        RememberSaved(File);
    }
    // The former plan can be restored by undo, even if the load failed.
    FinishEdit();
    if (!loaded) {
        return false;
    }
    // In a window title "[*]" is a placeholder of the toolkit; doubled, it is shown.
    setWindowTitle(
        ToQString(WindowTitleFor(File)).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
    RunSimulation(Silent);
    return true;
}

}  // namespace tarvelin
