// Layout of the window and its handlers.
#include "ui/mainwindow/frmMain.h"

#include <QCoreApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QTableView>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "plan/HoverInfo.h"
#include "ui/mainwindow/ApplySkin.h"
#include "ui/mainwindow/MakerSite.h"
#include "ui/mainwindow/WebSkin.h"
#include "ui/mainwindow/WindowMessages.h"
#include "ui/widgets/EnterKeyFilter.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/widgets/Pictures.h"

namespace tarvelin {

namespace {

/// Of the window, in twips.
constexpr int kBreite = 12870;
constexpr int kHoehe = 5030;

/// Brings up a window of its own, or the one that is open already.
template <class F>
void ZeigeEinmaliges(std::unique_ptr<F>& fenster, const Environment& umgebung) {
    if (!fenster) {
        fenster = std::make_unique<F>(umgebung);
    }
    fenster->setWindowState(fenster->windowState() & ~Qt::WindowMinimized);
    fenster->show();
    fenster->raise();
    fenster->activateWindow();
}

}  // namespace

frmMain::frmMain(const Environment& umgebung)
    : m_umgebung(umgebung),
      m_konfiguration(umgebung.programFolder, umgebung.files),
      m_autosave(umgebung.programFolder, umgebung.files),
      m_rollflaeche(new QScrollArea(this)),
      m_flaeche(new QWidget(this)),
      m_Fra_Einstellungen(new Fra_Einstellungen(m_plan, m_flaeche)),
      m_Fra_Special(new Fra_Special(m_flaeche)),
      m_Fra_Skin(new Fra_Skin(umgebung.programFolder / "img" / "skins", m_flaeche)),
      m_Fra_Sleep(new Fra_Sleep(m_plan.LV_Schlafzeiten, umgebung, m_flaeche)),
      m_Fra_Rest(new Fra_Rest(m_plan.LV_Bauliste, m_lauf, m_flaeche)),
      m_TopLine(new QFrame(m_flaeche)),
      m_menue(new Menueleiste(this)),
      m_alarme(new Alarme({.LV_Bauzeiten = m_lauf.LV_Bauzeiten,
                           .LV_Schlafzeiten = m_plan.LV_Schlafzeiten,
                           .Chk_BauWeckfunktion = *m_Fra_Rest->Bauwecker(),
                           .Chk_Schlafzeitenwecker = *m_Fra_Sleep->Chk_Schlafzeitenwecker,
                           .Comb_Before = *m_Fra_Rest->SekundenVorher()},
                          umgebung, m_flaeche)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Tarvelin  |  Kelva Aufbau-Simulator"));
    LegeAus();
    BaueMenue();
    Verbinde();
    LadeBilder();
    SetzeHeute();
    m_verlauf.Begin(SnapshotOf(m_plan));
    m_Fra_Rest->Zeige(m_texte);
    m_Fra_Rest->ZeigeNamen(m_plan.ShowDesc);
    m_Tmr_Autosave.setObjectName(QStringLiteral("Tmr_Autosave"));
    connect(&m_Tmr_Autosave, &QTimer::timeout, this, [this] { m_autosave.WriteIfChanged(m_plan); });
}

// What the lists show must outlive them.
frmMain::~frmMain() {
    delete m_flaeche;
}

void frmMain::LegeAus() {
    m_rollflaeche->setObjectName(QStringLiteral("Rollflaeche"));
    m_rollflaeche->setFrameShape(QFrame::NoFrame);
    m_rollflaeche->setFocusPolicy(Qt::NoFocus);
    m_rollflaeche->setWidgetResizable(true);
    m_rollflaeche->setWidget(m_flaeche);
    setCentralWidget(m_rollflaeche);
    PasseAnBildschirmAn();
    m_Fra_Rest->move(0, TwipsToPixels(2));
    m_Fra_Rest->lower();
    m_flaeche->setMinimumSize(TwipsToPixels(kBreite), m_Fra_Rest->geometry().bottom() + 1);
    m_TopLine->setObjectName(QStringLiteral("TopLine"));
    m_TopLine->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    m_TopLine->setGeometry(0, 0, TwipsToPixels(kBreite), 1);
    m_TopLine->setAttribute(Qt::WA_TransparentForMouseEvents);
    setMenuBar(m_menue);
    m_Fra_Rest->Startknopf()->setDefault(true);
    // The button owns it.
    new EnterKeyFilter(m_Fra_Rest->Startknopf());
    m_Fra_Einstellungen->TakeFocus();
    // No control takes what is dragged in from elsewhere.
    for (QLineEdit* const eingabe : findChildren<QLineEdit*>()) {
        eingabe->setAcceptDrops(false);
    }
    for (QTableView* const kalenderblatt : findChildren<QTableView*>()) {
        kalenderblatt->installEventFilter(this);
    }
}

QSize frmMain::GroesseAuf(const QSize& bildschirm) {
    const QSize ganz(TwipsToPixels(kBreite), TwipsToPixels(kHoehe));
    if (ganz.boundedTo(bildschirm) == ganz) {
        return ganz;
    }
    constexpr QSize kRahmen(8, 36);
    return ganz.boundedTo(bildschirm - kRahmen);
}

void frmMain::FolgeBildschirm() {
    disconnect(m_bildschirm);
    m_bildschirm =
        connect(screen(), &QScreen::availableGeometryChanged, this, &frmMain::PasseAnBildschirmAn);
    PasseAnBildschirmAn();
}

void frmMain::PasseAnBildschirmAn() {
    setFixedSize(GroesseAuf(screen()->availableSize()));
}

void frmMain::LadeBilder() {
    const auto bilder = m_umgebung.programFolder / "img";
    setWindowIcon(LoadIconFile(bilder / "icon.ico"));
    // What another skin lacks stays as it is in this one.
    ZeigeSkin(kStandardskin, {});
    m_Fra_Rest->SetzeZeiger(LoadDragCursors(bilder, devicePixelRatioF()));
    m_Fra_Rest->SetzeSpendenbild(LoadPixmap(bilder / "spende.png"));
}

void frmMain::Verbinde() {
    connect(m_Fra_Rest, &Fra_Rest::DragDrop, this, &frmMain::LV_Bauliste_DragDrop);
    connect(m_Fra_Rest, &Fra_Rest::Cmd_Undo_Click, this, &frmMain::Cmd_Undo_Click);
    connect(m_Fra_Rest, &Fra_Rest::Cmd_Clear_Click, this, &frmMain::Cmd_Clear_Click);
    connect(m_Fra_Rest, &Fra_Rest::Cmd_Simulate_Click, this, &frmMain::Cmd_Simulate_Click);
    connect(m_Fra_Rest, &Fra_Rest::ImgDonate_Click, this, &frmMain::mnu_DOnate_Click);
    connect(m_Fra_Rest, &Fra_Rest::Img_MouseMove, this, &frmMain::Img_MouseMove);
    connect(m_Fra_Special->Cmd_AddProdaenderungsevent, &QPushButton::clicked, this,
            &frmMain::Cmd_AddProdaenderungsevent_Click);
    connect(m_Fra_Einstellungen, &Fra_Einstellungen::Chk_Speedfaktor_Click, this,
            &frmMain::Chk_Speedfaktor_Click);
    connect(m_Fra_Einstellungen, &Fra_Einstellungen::Geaendert, this,
            [this](const QString& eingabe) { Bearbeitet(eingabe.toStdString()); });
    connect(m_Fra_Sleep, &Fra_Sleep::Geaendert, this, [this] { Bearbeitet(); });
    connect(m_Fra_Einstellungen, &Fra_Einstellungen::cmd_ShowDesc_Click, this,
            [this] { m_Fra_Rest->ZeigeNamen(m_plan.ShowDesc); });
    connect(m_Fra_Skin->Cmd_ApplySkin, &QPushButton::clicked, this, &frmMain::Cmd_ApplySkin_Click);
}

QAction* frmMain::NeuerEintrag(QWidget* menue, const char* name, const char* text) {
    auto* const eintrag = new QAction(QString::fromLatin1(text), this);
    eintrag->setObjectName(QString::fromLatin1(name));
    menue->addAction(eintrag);
    return eintrag;
}

// The style would draw a separator's caption.
void frmMain::NeuerStrich(QMenu* menue, const char* name) {
    menue->addSeparator()->setObjectName(QString::fromLatin1(name));
}

void frmMain::BaueMenue() {
    BaueDateimenue();
    const auto felder = {
        std::tuple("mnuEinstellungen", "&Einstellungen", &frmMain::mnuEinstellungen_Click),
        std::tuple("mnu_SpecialEvents", "Special-&Events", &frmMain::mnu_SpecialEvents_Click),
        std::tuple("mnuSleep", "&Schlafzeiten", &frmMain::mnuSleep_Click),
        std::tuple("mnuSkin", "&Skin", &frmMain::mnuSkin_Click)};
    for (const auto& [name, text, handler] : felder) {
        connect(NeuerEintrag(m_menue, name, text), &QAction::triggered, this, handler);
    }
    BaueInfomenue();
    connect(NeuerEintrag(m_menue, "mnuWerkbank", "&Werkbank"), &QAction::triggered, this,
            &frmMain::mnuWerkbank_Click);
}

void frmMain::BaueDateimenue() {
    QMenu* const datei = m_menue->addMenu(QStringLiteral("&Datei"));
    datei->menuAction()->setObjectName(QStringLiteral("mnu_Datei"));
    const auto eintraege = {
        std::tuple("mnu_DateiNeu", "&Neu", Qt::Key_N, &frmMain::mnu_DateiNeu_Click),
        std::tuple("mnu_DateiLaden", "&Laden", Qt::Key_O, &frmMain::mnu_DateiLaden_Click),
        std::tuple("mnu_Datei_Speichern", "&Speichern", Qt::Key_S,
                   &frmMain::mnu_Datei_Speichern_Click)};
    for (const auto& [name, text, taste, handler] : eintraege) {
        QAction* const eintrag = NeuerEintrag(datei, name, text);
        eintrag->setShortcut(Qt::CTRL | taste);
        connect(eintrag, &QAction::triggered, this, handler);
    }
    NeuerStrich(datei, "mnu_Datei_Strich01");
    connect(NeuerEintrag(datei, "mnu_Datei_Beenden", "&Beenden"), &QAction::triggered, this,
            &QWidget::close);
}

void frmMain::BaueInfomenue() {
    QMenu* const info = m_menue->addMenu(QStringLiteral("Info"));
    info->menuAction()->setObjectName(QStringLiteral("mnu_Info"));
    connect(NeuerEintrag(info, "mnu_DOnate", "&Spenden..."), &QAction::triggered, this,
            &frmMain::mnu_DOnate_Click);
    connect(NeuerEintrag(info, "mnu_UpdateCheck", "&Update-Check"), &QAction::triggered, this,
            &frmMain::mnu_UpdateCheck_Click);
    NeuerStrich(info, "strich_02");
    connect(NeuerEintrag(info, "mnuAbout_TV", "&About Tarvelin"), &QAction::triggered, this,
            &frmMain::mnuAbout_TV_Click);
}

void frmMain::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_Fra_Rest->Startknopf()->click();
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

void frmMain::SetzeHeute() {
    const DateTime heute = m_umgebung.now();
    SetStartDate(m_plan.parameters, heute);
    m_Fra_Einstellungen->Zeige();
    // Whatever the hour says.
    m_Fra_Einstellungen->Zeige(WeekdayOf(heute));
}

void frmMain::mnu_UpdateCheck_Click() {
    const auto geladen = m_umgebung.fetcher.Fetch(Versionsdatei());
    if (!geladen) {
        m_umgebung.dialogs.Show(Versionsfehler());
    } else if (m_umgebung.dialogs.Ask(Versionsfrage(*geladen))) {
        m_umgebung.openPage(Downloadseite());
    }
}

void frmMain::mnuAbout_TV_Click() {
    ZeigeEinmaliges(m_frmAbout, m_umgebung);
}

void frmMain::mnu_DOnate_Click() {
    ZeigeEinmaliges(m_frmDonate, m_umgebung);
}

void frmMain::mnuWerkbank_Click() {
    if (!m_frmWerkbank) {
        m_frmWerkbank = std::make_unique<Workbench>(
            m_plan, m_verlauf,
            [this] { return m_Fra_Rest->SekundenVorher()->currentText().toStdString(); },
            m_umgebung);
        m_frmWerkbank->SetPictures(m_Fra_Rest->Itembilder());
        connect(m_frmWerkbank.get(), &Workbench::ListEdited, this, &frmMain::Uebernimm);
        connect(m_frmWerkbank.get(), &Workbench::UndoRequested, this, &frmMain::NimmZurueck);
        connect(m_frmWerkbank.get(), &Workbench::RedoRequested, this,
                &frmMain::WiederholeZurueckgenommenes);
    }
    m_frmWerkbank->Open(m_konfiguration);
}

void frmMain::ZeigeSkin(Byte mode, const std::string& pfad) {
    ApplySkin(mode, pfad, *m_Fra_Rest, m_umgebung.programFolder);
    if (m_frmWerkbank) {
        m_frmWerkbank->SetPictures(m_Fra_Rest->Itembilder());
    }
}

void frmMain::Cmd_ApplySkin_Click() {
    const Byte quelle = m_Fra_Skin->Quelle();
    QLineEdit& pfad = *m_Fra_Skin->txt_Pfad;
    if (quelle == kWebskin) {
        const auto ordner = m_umgebung.programFolder / "img" / "skins" / kLandeordner;
        ZeigeSkin(kWebskin, {});
        const auto ausgang = HoleWebskin(pfad.text().toStdString(), ordner, m_umgebung,
                                         [this] { return !IstGeschlossen(); });
        ZeigeSkin(ausgang == Webskinausgang::AmEnde ? kLokalerSkin : kStandardskin, kLandeordner);
        if (pfad.text().endsWith(QLatin1Char('/'))) {
            pfad.setText(pfad.text().chopped(1));
        }
    } else {
        ZeigeSkin(quelle, m_Fra_Skin->Comb_Skins->currentText().toStdString());
    }
    m_Fra_Skin->hide();
}

void frmMain::BringeNachVorn(QWidget& feld) {
    feld.raise();
    m_TopLine->raise();
}

void frmMain::Klappe(Panel& feld) {
    feld.setVisible(feld.isHidden());
    BringeNachVorn(feld);
    if (feld.isVisible()) {
        feld.TakeFocus();
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
    platz.Bild->SetGate(HoverInfoFor(platz.Item, m_plan.LV_Bauliste.Orders(), m_lauf.conditions));
}

void frmMain::Bearbeitet(std::string_view eingabe) {
    if (m_verlauf.Record(SnapshotOf(m_plan), eingabe)) {
        ZeigeInWerkbank();
    }
}

void frmMain::NimmZurueck() {
    if (m_verlauf.CanUndo()) {
        StellePlan(m_verlauf.Undo());
    }
}

void frmMain::WiederholeZurueckgenommenes() {
    if (m_verlauf.CanRedo()) {
        StellePlan(m_verlauf.Redo());
    }
}

void frmMain::Uebernimm(const std::vector<std::string>& tags,
                        const std::optional<SleepRow>& pause) {
    PlanSnapshot stand = SnapshotOf(m_plan);
    stand.tags = tags;
    if (pause) {
        stand.Schlafzeiten.insert(stand.Schlafzeiten.begin(), *pause);
    }
    static_cast<void>(m_verlauf.Record(stand));
    StellePlan(stand);
}

void frmMain::StellePlan(const PlanSnapshot& stand) {
    m_plan.parameters = stand.parameters;
    m_Fra_Einstellungen->Zeige();
    if (m_plan.LV_Schlafzeiten != stand.Schlafzeiten) {
        m_plan.LV_Schlafzeiten = stand.Schlafzeiten;
        m_Fra_Sleep->Zeige();
    }
    // The factor texts are those of the run that follows.
    m_lauf.conditions.Temperatur =
        ParseTemperature(m_plan.parameters).value_or(m_lauf.conditions.Temperatur);
    m_plan.LV_Bauliste.SetTags(stand.tags, m_lauf.conditions);
    m_Fra_Rest->ZeigeListe();
    SpieleStill();
    ZeigeInWerkbank();
}

// What a run would tell in boxes stands in the workbench.
void frmMain::SpieleStill() {
    Chk_Speedfaktor_Click();
    const auto bedingungen = ParseRunConditions(m_plan);
    if (const auto* const gute = std::get_if<RunConditions>(&bedingungen)) {
        m_lauf.ResetSimulation(*gute);
        m_texte.AfterReset();
        std::vector<Message> meldungen;
        MessageCollector liste(meldungen);
        RunSimulation(m_plan.LV_Bauliste.Orders().All(), m_lauf, liste);
        m_texte.AfterRun(m_lauf.state);
    } else if (m_plan.LV_Bauliste.Orders().IsEmpty()) {
        m_lauf.ResetSimulation(m_plan.parameters);
        m_texte.AfterReset();
        m_texte.AfterClear();
    }
    m_Fra_Rest->Zeige(m_texte);
    m_Fra_Rest->ZeigeBauzeiten();
}

void frmMain::ZeigeInWerkbank() {
    if (m_frmWerkbank) {
        m_frmWerkbank->RefreshPlan();
    }
}

void frmMain::LV_Bauliste_DragDrop(const QString& Source) {
    const auto item = ItemFromPicture(Source.toStdString());
    std::optional<Message> meldung;
    if (item) {
        meldung = m_plan.LV_Bauliste.AddItem(*item, m_lauf.conditions);
    } else {
        meldung = Message{.text = "KA", .title = "", .icon = MessageIcon::None};
    }
    if (meldung) {
        // A box would come up inside the drag; it waits until the pointer is free.
        QTimer::singleShot(0, this, [this, text = *meldung] { m_umgebung.dialogs.Show(text); });
        return;
    }
    ZeigeNeueZeile();
    Bearbeitet();
}

void frmMain::Cmd_AddProdaenderungsevent_Click() {
    const auto meldung =
        m_plan.LV_Bauliste.AddProduction(m_Fra_Special->Faktoren(), m_lauf.conditions);
    if (meldung) {
        m_umgebung.dialogs.Show(*meldung);
        return;
    }
    ZeigeNeueZeile();
    Bearbeitet();
}

void frmMain::ZeigeNeueZeile() {
    m_Fra_Rest->ZeigeListe();
    m_Fra_Rest->MacheLetzteSichtbar();
}

void frmMain::Cmd_Undo_Click() {
    m_plan.LV_Bauliste.RemoveLast();
    m_Fra_Rest->ZeigeListe();
    Bearbeitet();
}

void frmMain::Cmd_Clear_Click() {
    LeereListe();
    Bearbeitet();
}

void frmMain::LeereListe() {
    m_plan.LV_Bauliste.Clear();
    m_texte.AfterClear();
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
    m_lauf.conditions.Speedfaktor = m_plan.parameters.Speedfaktor();
}

void frmMain::ZeigePlan() {
    m_Fra_Einstellungen->Zeige();
    Chk_Speedfaktor_Click();
    m_Fra_Sleep->Zeige();
    m_Fra_Rest->ZeigeNamen(m_plan.ShowDesc);
    ZeigeNeueZeile();
}

void frmMain::StarteSimulation(bool silent) {
    Chk_Speedfaktor_Click();
    const auto bedingungen = PruefeEingaben(silent);
    if (!bedingungen) {
        return;
    }
    m_lauf.ResetSimulation(*bedingungen);
    m_texte.AfterReset();
    m_Fra_Rest->Zeige(m_texte);
    ZeigeStandDesLaufs();
    m_Fra_Rest->MacheErsteBauzeitSichtbar();
    m_Fra_Einstellungen->RefreshWeekday();
    Standmeldungen meldungen([this] { ZeigeStandDesLaufs(); }, m_umgebung.dialogs);
    RunSimulation(m_plan.LV_Bauliste.Orders().All(), m_lauf, meldungen);
    m_texte.AfterRun(m_lauf.state);
    m_Fra_Rest->Zeige(m_texte);
    m_Fra_Rest->ZeigeBauzeiten();
}

std::optional<RunConditions> frmMain::PruefeEingaben(bool silent) {
    const bool leer = m_plan.LV_Bauliste.Orders().IsEmpty();
    if (!leer) {
        FuelleStartdatum();
    }
    const auto bedingungen = ParseRunConditions(m_plan);
    const auto* const absage = std::get_if<Message>(&bedingungen);
    if (absage == nullptr) {
        return std::get<RunConditions>(bedingungen);
    }
    if (!silent || !leer) {
        ZeigeStandDesLaufs();
        m_umgebung.dialogs.Show(*absage);
    }
    return std::nullopt;
}

// Not an edit: the plan lies where it lay, and there is nothing to take back.
void frmMain::FuelleStartdatum() {
    const bool liegtInDatei = m_gesichert == SnapshotOf(m_plan);
    const StartParameters vorher = m_plan.parameters;
    PadStartDate(m_plan.parameters);
    m_verlauf.RewriteDay(vorher, m_plan.parameters);
    if (liegtInDatei) {
        m_gesichert = SnapshotOf(m_plan);
    }
}

void frmMain::ZeigeStandDesLaufs() {
    // Day and month may have been padded.
    m_Fra_Einstellungen->Zeige();
    m_Fra_Rest->ZeigeBauzeiten();
}

}  // namespace tarvelin
