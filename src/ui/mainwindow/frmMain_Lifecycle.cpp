// The life of the window: start, plan files, stop.
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
    if (IstGeschlossen()) {
        return;
    }
    m_Fra_Skin->FillSkinList();
    m_alarme->LiesKonfiguration();
    LiesSkin();
    m_abschnitt = Abschnitt::Start;
    show();
    connect(windowHandle(), &QWindow::screenChanged, this, &frmMain::FolgeBildschirm);
    FolgeBildschirm();
    WarteAufBildschirm();
    if (m_umgebung.startNotice) {
        m_umgebung.dialogs.Show(*m_umgebung.startNotice);
    }
    if (!IstGeschlossen() && !BringePlanargument() && !IstGeschlossen()) {
        BringePlan();
    }
    if (!IstGeschlossen()) {
        m_abschnitt = Abschnitt::Arbeit;
        m_verlauf.Begin(SnapshotOf(m_plan));
        ZeigeInWerkbank();
        constexpr std::chrono::seconds kTakt(4);
        m_Tmr_Autosave.start(kTakt);
    }
}

// The plan of the last session is kept beside it.
bool frmMain::BringePlanargument() {
    const std::filesystem::path& datei = m_umgebung.planArgument;
    if (datei.empty() || !LoadBauliste(datei, false) || IstGeschlossen()) {
        return false;
    }
    if (m_gesichert) {
        m_autosave.MarkStoredInFile(m_plan);
    }
    static_cast<void>(m_autosave.Write(m_plan));
    return true;
}

// The last plan stays untouched until the player has answered for it.
void frmMain::BringePlan() {
    const bool ersterStart = m_konfiguration.IsOn(Configuration::kFirststart);
    const bool lagDa = FileExists(m_autosave.PlanPath(), m_umgebung.files);
    const auto letzter = IniFile::Load(m_autosave.PlanPath(), m_umgebung.files);
    const auto starterplan = m_umgebung.programFolder / "saves" / "basic.tvf";
    const bool geladen = ersterStart && FileExists(starterplan, m_umgebung.files) &&
                         LoadBauliste(starterplan, false);
    const bool wieder = lagDa && StelleWiederHer(letzter);
    if (IstGeschlossen()) {
        return;
    }
    const bool behalten = !geladen || wieder || m_autosave.Write(m_plan);
    m_autosave.MarkWritten(m_plan);
    if (ersterStart && behalten) {
        static_cast<void>(m_umgebung.files.Remove(starterplan));
        m_gesichert.reset();
        static_cast<void>(m_konfiguration.Write({{Configuration::kFirststart, "0"}}));
    }
}

// A box that comes up before the window has its place would lie beside it.
void frmMain::WarteAufBildschirm() {
    constexpr int kLaengstens = 500;
    constexpr int kHappen = 10;
    QDeadlineTimer frist(kLaengstens);
    while (!windowHandle()->isExposed() && !frist.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, kHappen);
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

// A web skin is shown as it landed; nothing is fetched at a start.
void frmMain::LiesSkin() {
    const Byte mode = m_konfiguration.SkinMode();
    m_Fra_Skin->txt_Pfad->setText(ToQString(m_konfiguration.Read(Configuration::kWebPath)));
    m_Fra_Skin->WaehleQuelle(mode);
    ZeigeSkin(mode == kWebskin ? kLokalerSkin : mode, m_konfiguration.Read(Configuration::kPath));
}

bool frmMain::StelleWiederHer(const std::optional<IniFile>& letzter) {
    const auto entscheidung = DecideRecovery(m_konfiguration);
    if (IstGeschlossen() || entscheidung == Recovery::Never) {
        return false;
    }
    if (entscheidung == Recovery::Always) {
        LadeLetzten(letzter);
        return true;
    }
    const auto frage = [this](const char* text) {
        return m_umgebung.dialogs.Ask(
            {.text = text, .title = "Wiederherstellen...", .icon = MessageIcon::Question});
    };
    const bool ja = frage("Möchtest du die letzte Bauliste wiederherstellen?");
    const bool immer = frage("Bei jedem Start so verfahren?");
    if (IstGeschlossen()) {
        // The end of the program is no answer.
        return false;
    }
    if (immer) {
        static_cast<void>(m_konfiguration.Write({{Configuration::kAlwaysDoSo, "1"}}));
    }
    if (ja) {
        LadeLetzten(letzter);
    }
    static_cast<void>(m_konfiguration.Write({{Configuration::kRecover, ja ? "1" : "0"}}));
    return ja;
}

void frmMain::LadeLetzten(const std::optional<IniFile>& letzter) {
    LoadBauliste(letzter, m_autosave.PlanPath(), true);
    m_Fra_Einstellungen->hide();
}

void frmMain::closeEvent(QCloseEvent* event) {
    const Abschnitt bisher = std::exchange(m_abschnitt, Abschnitt::Geschlossen);
    if (bisher != Abschnitt::Geschlossen) {
        m_umgebung.dialogs.CloseAll();
    }
    if (bisher == Abschnitt::Start || bisher == Abschnitt::Arbeit) {
        Form_Unload(bisher);
    }
    QMainWindow::closeEvent(event);
    emit Geschlossen();
}

void frmMain::Form_Unload(Abschnitt bisher) {
    m_Tmr_Autosave.stop();
    m_alarme->Verstumme();
    m_umgebung.fetcher.Abort();
    Behalte(bisher);
    if (m_frmWerkbank) {
        m_frmWerkbank->hide();
    }
}

void frmMain::Sichere() {
    if (m_abschnitt == Abschnitt::Start || m_abschnitt == Abschnitt::Arbeit) {
        Behalte(m_abschnitt);
    }
}

void frmMain::Behalte(Abschnitt stand) {
    // Until the start is over the plan isn't the user's.
    const bool mitPlan = stand == Abschnitt::Arbeit;
    const Byte quelle = m_Fra_Skin->Quelle();
    const std::string pfad = quelle == kStandardskin ? "~"
                             : quelle == kWebskin
                                 ? kLandeordner
                                 : m_Fra_Skin->Comb_Skins->currentText().toStdString();
    const auto schalter = [](const QCheckBox& box) { return box.isChecked() ? "1" : "0"; };
    Configuration::Values werte{
        {Configuration::kMode, std::to_string(quelle)},
        {Configuration::kPath, pfad},
        {Configuration::kWebPath, m_Fra_Skin->txt_Pfad->text().toStdString()},
        {Configuration::kBaulistenwecker, schalter(*m_Fra_Rest->Bauwecker())},
        {Configuration::kSchlafzeitenwecker, schalter(*m_Fra_Sleep->Chk_Schlafzeitenwecker)}};
    if (mitPlan) {
        werte.emplace_back(Configuration::kItemCount,
                           std::to_string(m_plan.LV_Bauliste.Orders().Size()));
    }
    if (m_frmWerkbank) {
        const auto lage = m_frmWerkbank->GeometryValues();
        werte.insert(werte.end(), lage.begin(), lage.end());
    }
    static_cast<void>(m_konfiguration.Write(werte));
    if (mitPlan) {
        m_autosave.WriteAtExit(m_plan);
    }
}

void frmMain::mnu_DateiNeu_Click() {
    BewahreErsetzten();
    m_lauf.ResetSimulation(m_plan.parameters);
    m_texte.AfterReset();
    m_Fra_Rest->ZeigeBauzeiten();
    LeereListe();
    m_Fra_Einstellungen->show();
    m_Fra_Skin->hide();
    m_Fra_Sleep->hide();
    SetzeHeute();
    Bearbeitet();
    m_alarme->LiesKonfiguration();
}

void frmMain::mnu_DateiLaden_Click() {
    const auto datei = m_umgebung.AskForFile(Dialogs::Purpose::Load);
    if (!datei.empty()) {
        LoadBauliste(datei, false);
    }
}

void frmMain::mnu_Datei_Speichern_Click() {
    const auto datei = m_umgebung.AskForFile(Dialogs::Purpose::Save);
    if (datei.empty()) {
        return;
    }
    if (SaveBauliste(datei, m_plan, m_umgebung.files)) {
        MerkeGesichert(datei);
    } else {
        m_umgebung.dialogs.Show(SaveErrorMessage());
    }
}

// What the program moves on by itself is no place to lie in.
void frmMain::MerkeGesichert(const std::filesystem::path& datei) {
    m_gesichert = m_autosave.IsOwnFile(datei) ? std::nullopt : std::optional(SnapshotOf(m_plan));
}

void frmMain::BewahreErsetzten() const {
    if (m_abschnitt == Abschnitt::Arbeit && m_gesichert != SnapshotOf(m_plan)) {
        m_autosave.KeepReplaced(m_plan);
    }
}

bool frmMain::LoadBauliste(const std::filesystem::path& File, bool Silent) {
    return LoadBauliste(IniFile::Load(File, m_umgebung.files), File, Silent);
}

bool frmMain::LoadBauliste(const std::optional<IniFile>& profil, const std::filesystem::path& File,
                           bool Silent) {
    if (!profil) {
        m_umgebung.dialogs.Show(LoadErrorMessage());
        return false;
    }
    BewahreErsetzten();
    LeereListe();
    Standmeldungen meldungen(
        [this] {
            ZeigePlan();
            ZeigeInWerkbank();
        },
        m_umgebung.dialogs);
    const bool geladen = ReadPlan(*profil, m_plan, m_lauf.conditions, meldungen);
    if (geladen) {
        ZeigePlan();
        MerkeGesichert(File);
    }
    // What was there can be had back.
    Bearbeitet();
    if (!geladen) {
        return false;
    }
    // The toolkit takes the lone sign for a place of its own.
    setWindowTitle(
        ToQString(WindowTitleFor(File)).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
    StarteSimulation(Silent);
    return true;
}

}  // namespace tarvelin
