// The main window of Tarvelin: it owns the plan and its last run, and hands what the user does to
// the logic.
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
    /// `umgebung` must outlive the window, as must what it refers to.
    explicit frmMain(const Environment& umgebung);
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;
    ~frmMain() override;

    /// The plan and the state of the last run or reset.
    [[nodiscard]] const Plan& DerPlan() const { return m_plan; }
    [[nodiscard]] const LastRun& DerLauf() const { return m_lauf; }

    /// The window's size on a screen with this much room, in pixels: its own, or what there is.
    [[nodiscard]] static QSize GroesseAuf(const QSize& bildschirm);

    /// Reads the configuration, shows the window, and brings the starter plan or the last plan
    /// back.
    void Form_Load();
    /// Takes the plan of a file and runs it. `Silent` keeps quiet about an empty list. False, with
    /// a message, if the file holds no plan.
    bool LoadBauliste(const std::filesystem::path& File, bool Silent);
    /// Runs the plan and shows what it came to. `silent` keeps quiet about an empty list.
    void StarteSimulation(bool silent);
    /// Keeps what the end of the program would keep, and goes on.
    void Sichere();

  signals:
    /// The window has closed, and nothing more is written for it.
    void Geschlossen();

  protected:
    /// Enter presses the default button, unless what has the focus takes it.
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* ziel, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void LegeAus();
    void FolgeBildschirm();
    void PasseAnBildschirmAn();
    void LadeBilder();
    void Verbinde();
    void BaueMenue();
    QAction* NeuerEintrag(QWidget* menue, const char* name, const char* text);
    static void NeuerStrich(QMenu* menue, const char* name);

    void BaueDateimenue();
    void BaueInfomenue();

    void WarteAufBildschirm();
    void SetzeHeute();
    void LiesSkin();
    /// False if there is none, or it can't be loaded.
    bool BringePlanargument();
    void BringePlan();
    /// Whether the last plan was loaded.
    bool StelleWiederHer(const std::optional<IniFile>& letzter);
    void LadeLetzten(const std::optional<IniFile>& letzter);
    bool LoadBauliste(const std::optional<IniFile>& profil, const std::filesystem::path& File,
                      bool Silent);
    /// How far the window has come. The plan is the user's own when the start is over.
    enum class Abschnitt { Vorher, Start, Arbeit, Geschlossen };
    void Form_Unload(Abschnitt bisher);
    void Behalte(Abschnitt stand);
    [[nodiscard]] bool IstGeschlossen() const { return m_abschnitt == Abschnitt::Geschlossen; }

    void mnu_DateiNeu_Click();
    void mnu_DateiLaden_Click();
    void mnu_Datei_Speichern_Click();
    void mnu_UpdateCheck_Click();
    void mnuAbout_TV_Click();
    void mnu_DOnate_Click();
    void mnuWerkbank_Click();
    void Cmd_ApplySkin_Click();

    void BringeNachVorn(QWidget& feld);
    void Klappe(Panel& feld);
    void mnuEinstellungen_Click();
    void mnu_SpecialEvents_Click();
    void mnuSkin_Click();
    void mnuSleep_Click();

    void Img_MouseMove(const Itemplatz& platz);
    void LV_Bauliste_DragDrop(const QString& Source);
    void Cmd_AddProdaenderungsevent_Click();
    void Cmd_Undo_Click();
    void Cmd_Clear_Click();
    void Cmd_Simulate_Click();
    void Chk_Speedfaktor_Click();
    void LeereListe();
    /// Ends an edit by hand, which can then be taken back. `eingabe` is the input typed into.
    void Bearbeitet(std::string_view eingabe = {});
    void NimmZurueck();
    void WiederholeZurueckgenommenes();
    /// Takes rows that the workbench made, and a pause in front of the sleep rows.
    void Uebernimm(const std::vector<std::string>& tags, const std::optional<SleepRow>& pause);
    /// Makes the plan what it is to be, and runs it without a box.
    void StellePlan(const PlanSnapshot& stand);
    void SpieleStill();
    void BewahreErsetzten() const;
    void MerkeGesichert(const std::filesystem::path& datei);
    void FuelleStartdatum();
    void ZeigeInWerkbank();
    void ZeigeSkin(Byte mode, const std::string& pfad);
    /// What a run can begin with; nothing, with a message, if it can't.
    std::optional<RunConditions> PruefeEingaben(bool silent);
    void ZeigeNeueZeile();
    void ZeigePlan();
    void ZeigeStandDesLaufs();

    const Environment& m_umgebung;
    Configuration m_konfiguration;
    Autosave m_autosave;
    QTimer m_Tmr_Autosave{this};
    Plan m_plan;
    EditHistory m_verlauf;
    /// The plan as it was last loaded from a file of the user's, or saved into one.
    std::optional<PlanSnapshot> m_gesichert;
    LastRun m_lauf;
    ResultTexts m_texte;

    /// Moves the surface on a screen that has no room for it.
    QScrollArea* m_rollflaeche;
    QMetaObject::Connection m_bildschirm;
    QWidget* m_flaeche;
    // In the order in which Tab goes through them: what lies above comes first.
    Fra_Einstellungen* m_Fra_Einstellungen;
    Fra_Special* m_Fra_Special;
    Fra_Skin* m_Fra_Skin;
    Fra_Sleep* m_Fra_Sleep;
    Fra_Rest* m_Fra_Rest;
    QFrame* m_TopLine;
    Menueleiste* m_menue;
    Alarme* m_alarme;
    /// Windows of their own, made at their first use.
    std::unique_ptr<frmAbout> m_frmAbout;
    std::unique_ptr<frmDonate> m_frmDonate;
    std::unique_ptr<Workbench> m_frmWerkbank;
    Abschnitt m_abschnitt = Abschnitt::Vorher;
};

}  // namespace tarvelin
