// Layout of the window and its handlers.
#include "ui/frmMain.h"

#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMenu>
#include <QTableView>
#include <QTimer>
#include <utility>

#include "ui/Skinbilder.h"

namespace tarvelin {

namespace {

/// Messages of a run come up with what it has changed so far on the screen.
class Laufmeldungen final : public Meldungsausgabe {
  public:
    Laufmeldungen(std::function<void()> zeigeStand, Dialoge& boxen)
        : m_zeigeStand(std::move(zeigeStand)), m_boxen(boxen) {}

    void Zeige(const Meldung& meldung) override {
        m_zeigeStand();
        m_boxen.Zeige(meldung);
    }
    void Piepton() override { m_boxen.Piepton(); }

  private:
    std::function<void()> m_zeigeStand;
    Dialoge& m_boxen;
};

/// The start parameters of a new plan: today, at the usual time of day.
Plan NeuerPlan(Zeitpunkt heute) {
    Plan plan;
    SetzeStartdatum(plan.Parameter, heute);
    return plan;
}

}  // namespace

frmMain::frmMain(const Umgebung& umgebung)
    : m_umgebung(umgebung),
      m_plan(NeuerPlan(umgebung.Jetzt())),
      m_flaeche(new QWidget(this)),
      m_Fra_Einstellungen(new Fra_Einstellungen(m_plan, m_flaeche)),
      m_Fra_Special(new Fra_Special(m_flaeche)),
      m_Fra_Skin(new Fra_Skin(umgebung.Programmordner / "img" / "skins", m_flaeche)),
      m_Fra_Sleep(new Fra_Sleep(m_plan.Schlafzeiten, umgebung, m_flaeche)),
      m_Fra_Rest(new Fra_Rest(m_plan.Liste, m_lauf, m_flaeche)),
      m_TopLine(new QFrame(m_flaeche)),
      m_menue(new Menueleiste(this)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Tarvelin  |  Kelva Aufbau-Simulator"));
    LegeAus();
    BaueMenue();
    Verbinde();
    LadeBilder();
    m_Fra_Rest->Zeige(m_texte);
    m_Fra_Rest->ZeigeNamen(m_plan.ShowDesc);
}

// What the lists show must outlive them.
frmMain::~frmMain() {
    delete m_flaeche;
}

void frmMain::LegeAus() {
    constexpr int kBreite = 12870;
    constexpr int kHoehe = 5030;
    setFixedSize(Pixel(kBreite), Pixel(kHoehe));
    setCentralWidget(m_flaeche);
    m_Fra_Rest->move(0, Pixel(2));
    m_Fra_Rest->lower();
    m_TopLine->setObjectName(QStringLiteral("TopLine"));
    m_TopLine->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    m_TopLine->setGeometry(0, 0, Pixel(kBreite), 1);
    m_TopLine->setAttribute(Qt::WA_TransparentForMouseEvents);
    setMenuBar(m_menue);
    m_Fra_Rest->Frame8->Cmd_Simulate->setDefault(true);
    m_Fra_Einstellungen->NimmFokus();
    // No control takes what is dragged in from elsewhere.
    for (QLineEdit* const eingabe : findChildren<QLineEdit*>()) {
        eingabe->setAcceptDrops(false);
    }
    for (QTableView* const kalenderblatt : findChildren<QTableView*>()) {
        kalenderblatt->installEventFilter(this);
    }
}

void frmMain::LadeBilder() {
    const auto bilder = m_umgebung.Programmordner / "img";
    setWindowIcon(LadeSymbol(bilder / "icon.ico"));
    const Ziehzeiger zeiger = LadeZiehzeiger(bilder, devicePixelRatioF());
    for (const Itemplatz& platz : m_Fra_Rest->Plaetze()) {
        platz.Bild->SetzeZeiger(zeiger);
    }
    m_Fra_Rest->Frame6->ImgDonate_1->setCursor(zeiger.Offen);
    m_Fra_Rest->Frame6->ImgDonate_1->SetzeBild(LadePixmap(bilder / "spende.png"));
    LadeStandardskin(*m_Fra_Rest, bilder);
}

void frmMain::Verbinde() {
    const Baulistengruppe& liste = *m_Fra_Rest->Frame8;
    connect(liste.LV_Bauliste, &Baulistenansicht::DragDrop, this, &frmMain::LV_Bauliste_DragDrop);
    connect(liste.Cmd_Undo, &QPushButton::clicked, this, &frmMain::Cmd_Undo_Click);
    connect(liste.Cmd_Clear, &QPushButton::clicked, this, &frmMain::Cmd_Clear_Click);
    connect(liste.Cmd_Simulate, &QPushButton::clicked, this, &frmMain::Cmd_Simulate_Click);
    connect(m_Fra_Special->Cmd_AddProdaenderungsevent, &QPushButton::clicked, this,
            &frmMain::Cmd_AddProdaenderungsevent_Click);
    connect(m_Fra_Einstellungen, &Fra_Einstellungen::Chk_Speedfaktor_Click, this,
            &frmMain::Chk_Speedfaktor_Click);
    connect(m_Fra_Einstellungen, &Fra_Einstellungen::cmd_ShowDesc_Click, this,
            [this] { m_Fra_Rest->ZeigeNamen(m_plan.ShowDesc); });
    for (const Itemplatz& platz : m_Fra_Rest->Plaetze()) {
        connect(platz.Bild, &Itembild::MouseMove, this, [this, platz] { Img_MouseMove(platz); });
        connect(platz.Bild, &Itembild::Gewaehlt, this,
                [this, platz] { LV_Bauliste_DragDrop(platz.Bild->objectName()); });
    }
}

QAction* frmMain::NeuerEintrag(QWidget* menue, const char* name, const QString& text) {
    auto* const eintrag = new QAction(text, this);
    eintrag->setObjectName(QString::fromLatin1(name));
    menue->addAction(eintrag);
    return eintrag;
}

// The style would draw a separator's caption.
void frmMain::NeuerStrich(QMenu* menue, const char* name) {
    menue->addSeparator()->setObjectName(QString::fromLatin1(name));
}

void frmMain::BaueMenue() {
    QMenu* const datei = m_menue->addMenu(QStringLiteral("&Datei"));
    datei->menuAction()->setObjectName(QStringLiteral("mnu_Datei"));
    NeuerEintrag(datei, "mnu_DateiNeu", QStringLiteral("&Neu"))->setShortcut(Qt::CTRL | Qt::Key_N);
    NeuerEintrag(datei, "mnu_DateiLaden", QStringLiteral("&Laden"))
        ->setShortcut(Qt::CTRL | Qt::Key_O);
    NeuerEintrag(datei, "mnu_Datei_Speichern", QStringLiteral("&Speichern"))
        ->setShortcut(Qt::CTRL | Qt::Key_S);
    NeuerStrich(datei, "mnu_Datei_Strich01");
    connect(NeuerEintrag(datei, "mnu_Datei_Beenden", QStringLiteral("&Beenden")),
            &QAction::triggered, this, &QWidget::close);

    connect(NeuerEintrag(m_menue, "mnuEinstellungen", QStringLiteral("&Einstellungen")),
            &QAction::triggered, this, &frmMain::mnuEinstellungen_Click);
    connect(NeuerEintrag(m_menue, "mnu_SpecialEvents", QStringLiteral("Special-&Events")),
            &QAction::triggered, this, &frmMain::mnu_SpecialEvents_Click);
    connect(NeuerEintrag(m_menue, "mnuSleep", QStringLiteral("&Schlafzeiten")), &QAction::triggered,
            this, &frmMain::mnuSleep_Click);
    connect(NeuerEintrag(m_menue, "mnuSkin", QStringLiteral("&Skin")), &QAction::triggered, this,
            &frmMain::mnuSkin_Click);

    QMenu* const info = m_menue->addMenu(QStringLiteral("Info"));
    info->menuAction()->setObjectName(QStringLiteral("mnu_Info"));
    NeuerEintrag(info, "mnu_DOnate", QStringLiteral("&Spenden..."));
    NeuerEintrag(info, "mnu_UpdateCheck", QStringLiteral("&Update-Check"));
    NeuerStrich(info, "strich_02");
    NeuerEintrag(info, "mnuAbout_TV", QStringLiteral("&About Tarvelin"));
}

void frmMain::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_Fra_Rest->Frame8->Cmd_Simulate->click();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

bool frmMain::eventFilter(QObject* ziel, QEvent* event) {
    // The page of the calendar would keep Enter for itself.
    if (event->type() == QEvent::KeyPress) {
        auto* const taste = static_cast<QKeyEvent*>(event);
        if (taste->key() == Qt::Key_Return || taste->key() == Qt::Key_Enter) {
            keyPressEvent(taste);
            return true;
        }
    }
    return QMainWindow::eventFilter(ziel, event);
}

void frmMain::BringeNachVorn(QWidget& feld) {
    feld.raise();
    m_TopLine->raise();
}

void frmMain::Klappe(Feld& feld) {
    feld.setVisible(feld.isHidden());
    BringeNachVorn(feld);
    if (feld.isVisible()) {
        feld.NimmFokus();
    }
}

void frmMain::mnuEinstellungen_Click() {
    Klappe(*m_Fra_Einstellungen);
}

void frmMain::mnu_SpecialEvents_Click() {
    Klappe(*m_Fra_Special);
    m_Fra_Skin->hide();
    m_Fra_Skin->FillSkinList();
    m_Fra_Sleep->hide();
}

void frmMain::mnuSkin_Click() {
    Klappe(*m_Fra_Skin);
    m_Fra_Special->hide();
    m_Fra_Skin->FillSkinList();
    m_Fra_Sleep->hide();
}

void frmMain::mnuSleep_Click() {
    Klappe(*m_Fra_Sleep);
    m_Fra_Special->hide();
    m_Fra_Skin->hide();
    m_Fra_Sleep->RefreshSchlafEnde();
}

void frmMain::Img_MouseMove(const Itemplatz& platz) {
    platz.Bild->SetzeGate(HoverInfo(platz.Item, m_plan.Liste, m_lauf.Planet));
}

void frmMain::LV_Bauliste_DragDrop(const QString& Source) {
    if (const auto meldung = m_plan.Liste.DragDrop(Source.toStdString(), m_lauf.Planet)) {
        // A box would come up inside the drag; it waits until the pointer is free.
        QTimer::singleShot(0, this, [this, text = *meldung] { m_umgebung.Boxen.Zeige(text); });
        return;
    }
    ZeigeNeueZeile();
}

void frmMain::Cmd_AddProdaenderungsevent_Click() {
    if (const auto meldung =
            m_plan.Liste.AddProdaenderungsevent(m_Fra_Special->Faktoren(), m_lauf.Planet)) {
        m_umgebung.Boxen.Zeige(*meldung);
        return;
    }
    ZeigeNeueZeile();
}

void frmMain::ZeigeNeueZeile() {
    m_Fra_Rest->ZeigeListe();
    m_Fra_Rest->Frame8->MacheLetzteSichtbar();
}

void frmMain::Cmd_Undo_Click() {
    m_plan.Liste.Undo();
    m_Fra_Rest->ZeigeListe();
}

void frmMain::Cmd_Clear_Click() {
    m_plan.Liste.Clear();
    m_texte.NachClear();
    m_Fra_Rest->ZeigeListe();
    m_Fra_Rest->Zeige(m_texte);
}

void frmMain::Cmd_Simulate_Click() {
    m_Fra_Einstellungen->hide();
    m_Fra_Special->hide();
    m_Fra_Skin->hide();
    m_Fra_Sleep->hide();
    StarteSimulation(false);
}

void frmMain::Chk_Speedfaktor_Click() {
    m_lauf.Planet.Globale.Speedfaktor = m_plan.Parameter.Speedfaktor();
}

void frmMain::UebernimmPlan(Plan plan) {
    Cmd_Clear_Click();
    m_plan = std::move(plan);
    m_Fra_Einstellungen->Zeige();
    m_Fra_Sleep->Zeige();
    m_Fra_Rest->ZeigeNamen(m_plan.ShowDesc);
    ZeigeNeueZeile();
}

void frmMain::StarteSimulation(bool silent) {
    Laufmeldungen meldungen([this] { ZeigeStandDesLaufs(); }, m_umgebung.Boxen);
    if (BeginneLauf(m_plan, m_lauf, meldungen, silent) == Laufausgang::AnEingabenGescheitert) {
        return;
    }
    m_texte.NachReset();
    m_Fra_Rest->Zeige(m_texte);
    ZeigeStandDesLaufs();
    m_Fra_Rest->Frame6->LV_Bauzeiten->scrollToTop();
    m_Fra_Einstellungen->RefreshWeekday();
    FuehreLaufDurch(m_plan, m_lauf, meldungen);
    m_texte.NachLauf(m_lauf.Planet.Globale);
    m_Fra_Rest->Zeige(m_texte);
    m_Fra_Rest->ZeigeBauzeiten();
}

void frmMain::ZeigeStandDesLaufs() {
    // Day and month may have been padded.
    m_Fra_Einstellungen->Zeige();
    m_Fra_Rest->ZeigeBauzeiten();
}

}  // namespace tarvelin
