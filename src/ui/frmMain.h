// The main window of Tarvelin: it owns the plan and its last run, and hands what the user does to
// the logic.
#pragma once

#include <QAction>
#include <QFrame>
#include <QMainWindow>

#include "plan/Plan.h"
#include "simulation/Ergebnistexte.h"
#include "simulation/RunSimulation.h"
#include "ui/Fra_Einstellungen.h"
#include "ui/Fra_Rest.h"
#include "ui/Fra_Skin.h"
#include "ui/Fra_Sleep.h"
#include "ui/Fra_Special.h"
#include "ui/Menueleiste.h"
#include "ui/Umgebung.h"

namespace tarvelin {

class frmMain : public QMainWindow {
    Q_OBJECT

  public:
    /// `umgebung` must outlive the window, as must what it refers to.
    explicit frmMain(const Umgebung& umgebung);
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;
    ~frmMain() override;

    /// The plan and the state of the last run or reset.
    [[nodiscard]] const Plan& DerPlan() const { return m_plan; }
    [[nodiscard]] const Lauf& DerLauf() const { return m_lauf; }

    /// Takes another plan in the place of the present one; nothing is run.
    void UebernimmPlan(Plan plan);
    /// Runs the plan and shows what it came to. `silent` keeps quiet about an empty list.
    void StarteSimulation(bool silent);

  protected:
    /// Enter presses the default button, unless what has the focus takes it.
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* ziel, QEvent* event) override;

  private:
    void LegeAus();
    void LadeBilder();
    void Verbinde();
    void BaueMenue();
    QAction* NeuerEintrag(QWidget* menue, const char* name, const QString& text);
    static void NeuerStrich(QMenu* menue, const char* name);

    void BringeNachVorn(QWidget& feld);
    void Klappe(Feld& feld);
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
    void ZeigeNeueZeile();
    void ZeigeStandDesLaufs();

    const Umgebung& m_umgebung;
    Plan m_plan;
    Lauf m_lauf;
    Ergebnistexte m_texte;

    QWidget* m_flaeche;
    // In the order in which Tab goes through them: what lies above comes first.
    Fra_Einstellungen* m_Fra_Einstellungen;
    Fra_Special* m_Fra_Special;
    Fra_Skin* m_Fra_Skin;
    Fra_Sleep* m_Fra_Sleep;
    Fra_Rest* m_Fra_Rest;
    QFrame* m_TopLine;
    Menueleiste* m_menue;
};

}  // namespace tarvelin
