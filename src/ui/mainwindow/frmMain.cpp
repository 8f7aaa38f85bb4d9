// Layout and handlers of the main window.
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

/// Size of the window, in twips.
constexpr int kWidth = 12870;
constexpr int kHeight = 5030;

/// Opens the window or brings it to the front.
template <class F>
void ShowSingle(std::unique_ptr<F>& window, const Environment& environment) {
    if (!window) {
        window = std::make_unique<F>(environment);
    }
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

}  // namespace

frmMain::frmMain(const Environment& environment)
    : m_environment(environment),
      m_configuration(environment.programFolder, environment.files),
      m_autosave(environment.programFolder, environment.files),
      m_scrollArea(new QScrollArea(this)),
      m_surface(new QWidget(this)),
      m_Fra_Einstellungen(new Fra_Einstellungen(m_plan, m_surface)),
      m_Fra_Special(new Fra_Special(m_surface)),
      m_Fra_Skin(new Fra_Skin(environment.programFolder / "img" / "skins", m_surface)),
      m_Fra_Sleep(new Fra_Sleep(m_plan.LV_Schlafzeiten, environment, m_surface)),
      m_Fra_Rest(new Fra_Rest(m_plan.LV_Bauliste, m_run, m_surface)),
      m_TopLine(new QFrame(m_surface)),
      m_menu(new MenuBar(this)),
      m_alarms(new Alarms({.LV_Bauzeiten = m_run.LV_Bauzeiten,
                           .LV_Schlafzeiten = m_plan.LV_Schlafzeiten,
                           .Chk_BauWeckfunktion = *m_Fra_Rest->BuildAlarmSwitch(),
                           .Chk_Schlafzeitenwecker = *m_Fra_Sleep->Chk_Schlafzeitenwecker,
                           .Comb_Before = *m_Fra_Rest->SecondsBefore()},
                          environment, m_surface)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Tarvelin  |  Kelva Aufbau-Simulator"));
    Arrange();
    AddMenus();
    ConnectSignals();
    LoadPictures();
    SetToday();
    m_history.Begin(SnapshotOf(m_plan));
    m_Fra_Rest->ShowResult(m_texts);
    m_Fra_Rest->ShowNames(m_plan.ShowDesc);
    m_Tmr_Autosave.setObjectName(QStringLiteral("Tmr_Autosave"));
    connect(&m_Tmr_Autosave, &QTimer::timeout, this, [this] { m_autosave.WriteIfChanged(m_plan); });
}

// The lists show members, which are destroyed before child widgets.
frmMain::~frmMain() {
    delete m_surface;
}

void frmMain::Arrange() {
    m_scrollArea->setObjectName(QStringLiteral("Rollflaeche"));
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setFocusPolicy(Qt::NoFocus);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setWidget(m_surface);
    setCentralWidget(m_scrollArea);
    FitToScreen();
    m_Fra_Rest->move(0, TwipsToPixels(2));
    m_Fra_Rest->lower();
    m_surface->setMinimumSize(TwipsToPixels(kWidth), m_Fra_Rest->geometry().bottom() + 1);
    m_TopLine->setObjectName(QStringLiteral("TopLine"));
    m_TopLine->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    m_TopLine->setGeometry(0, 0, TwipsToPixels(kWidth), 1);
    m_TopLine->setAttribute(Qt::WA_TransparentForMouseEvents);
    setMenuBar(m_menu);
    m_Fra_Rest->StartButton()->setDefault(true);
    // The button owns it.
    new EnterKeyFilter(m_Fra_Rest->StartButton());
    m_Fra_Einstellungen->TakeFocus();
    // Inputs take no drops.
    for (QLineEdit* const input : findChildren<QLineEdit*>()) {
        input->setAcceptDrops(false);
    }
    for (QTableView* const calendarPage : findChildren<QTableView*>()) {
        calendarPage->installEventFilter(this);
    }
}

QSize frmMain::SizeOn(const QSize& screen) {
    const QSize whole(TwipsToPixels(kWidth), TwipsToPixels(kHeight));
    if (whole.boundedTo(screen) == whole) {
        return whole;
    }
    constexpr QSize kFrame(8, 36);
    return whole.boundedTo(screen - kFrame);
}

void frmMain::FollowScreen() {
    disconnect(m_screen);
    m_screen = connect(screen(), &QScreen::availableGeometryChanged, this, &frmMain::FitToScreen);
    FitToScreen();
}

void frmMain::FitToScreen() {
    setFixedSize(SizeOn(screen()->availableSize()));
}

void frmMain::LoadPictures() {
    const auto pictures = m_environment.programFolder / "img";
    setWindowIcon(LoadIconFile(pictures / "icon.ico"));
    // A picture that another skin lacks is that of the standard skin.
    ShowSkin(kStandardSkin, {});
    m_Fra_Rest->SetCursors(LoadDragCursors(pictures, devicePixelRatioF()));
    m_Fra_Rest->SetDonationPicture(LoadPixmap(pictures / "spende.png"));
}

void frmMain::ConnectSignals() {
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
    connect(m_Fra_Einstellungen, &Fra_Einstellungen::Edited, this,
            [this](const QString& input) { FinishEdit(input.toStdString()); });
    connect(m_Fra_Sleep, &Fra_Sleep::Edited, this, [this] { FinishEdit(); });
    connect(m_Fra_Einstellungen, &Fra_Einstellungen::cmd_ShowDesc_Click, this,
            [this] { m_Fra_Rest->ShowNames(m_plan.ShowDesc); });
    connect(m_Fra_Skin->Cmd_ApplySkin, &QPushButton::clicked, this, &frmMain::Cmd_ApplySkin_Click);
}

QAction* frmMain::NewMenuEntry(QWidget* menu, const char* name, const char* text) {
    auto* const entry = new QAction(QString::fromLatin1(text), this);
    entry->setObjectName(QString::fromLatin1(name));
    menu->addAction(entry);
    return entry;
}

// Without a text, as the style would draw it.
void frmMain::NewSeparator(QMenu* menu, const char* name) {
    menu->addSeparator()->setObjectName(QString::fromLatin1(name));
}

void frmMain::AddMenus() {
    AddFileMenu();
    const auto panels = {
        std::tuple("mnuEinstellungen", "&Einstellungen", &frmMain::mnuEinstellungen_Click),
        std::tuple("mnu_SpecialEvents", "Special-&Events", &frmMain::mnu_SpecialEvents_Click),
        std::tuple("mnuSleep", "&Schlafzeiten", &frmMain::mnuSleep_Click),
        std::tuple("mnuSkin", "&Skin", &frmMain::mnuSkin_Click)};
    for (const auto& [name, text, handler] : panels) {
        connect(NewMenuEntry(m_menu, name, text), &QAction::triggered, this, handler);
    }
    AddInfoMenu();
    connect(NewMenuEntry(m_menu, "mnuWerkbank", "&Werkbank"), &QAction::triggered, this,
            &frmMain::mnuWorkbench_Click);
}

void frmMain::AddFileMenu() {
    QMenu* const file = m_menu->addMenu(QStringLiteral("&Datei"));
    file->menuAction()->setObjectName(QStringLiteral("mnu_Datei"));
    const auto entries = {
        std::tuple("mnu_DateiNeu", "&Neu", Qt::Key_N, &frmMain::mnu_DateiNeu_Click),
        std::tuple("mnu_DateiLaden", "&Laden", Qt::Key_O, &frmMain::mnu_DateiLaden_Click),
        std::tuple("mnu_Datei_Speichern", "&Speichern", Qt::Key_S,
                   &frmMain::mnu_Datei_Speichern_Click)};
    for (const auto& [name, text, key, handler] : entries) {
        QAction* const entry = NewMenuEntry(file, name, text);
        entry->setShortcut(Qt::CTRL | key);
        connect(entry, &QAction::triggered, this, handler);
    }
    NewSeparator(file, "mnu_Datei_Strich01");
    connect(NewMenuEntry(file, "mnu_Datei_Beenden", "&Beenden"), &QAction::triggered, this,
            &QWidget::close);
}

void frmMain::AddInfoMenu() {
    QMenu* const info = m_menu->addMenu(QStringLiteral("Info"));
    info->menuAction()->setObjectName(QStringLiteral("mnu_Info"));
    connect(NewMenuEntry(info, "mnu_DOnate", "&Spenden..."), &QAction::triggered, this,
            &frmMain::mnu_DOnate_Click);
    connect(NewMenuEntry(info, "mnu_UpdateCheck", "&Update-Check"), &QAction::triggered, this,
            &frmMain::mnu_UpdateCheck_Click);
    NewSeparator(info, "strich_02");
    connect(NewMenuEntry(info, "mnuAbout_TV", "&About Tarvelin"), &QAction::triggered, this,
            &frmMain::mnuAbout_TV_Click);
}

void frmMain::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        m_Fra_Rest->StartButton()->click();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

bool frmMain::eventFilter(QObject* target, QEvent* event) {
    // A calendar's page would swallow Enter.
    if (event->type() == QEvent::KeyPress) {
        auto* const key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            keyPressEvent(key);
            return true;
        }
    }
    return QMainWindow::eventFilter(target, event);
}

void frmMain::SetToday() {
    const DateTime today = m_environment.now();
    SetStartDate(m_plan.parameters, today);
    m_Fra_Einstellungen->Refresh();
    // Not from the inputs, as an invalid hour would show an error.
    m_Fra_Einstellungen->Refresh(WeekdayOf(today));
}

void frmMain::mnu_UpdateCheck_Click() {
    const auto loaded = m_environment.fetcher.Fetch(VersionFile());
    if (!loaded) {
        m_environment.dialogs.Show(VersionErrorMessage());
    } else if (m_environment.dialogs.Ask(VersionQuestion(*loaded))) {
        m_environment.openPage(DownloadsPage());
    }
}

void frmMain::mnuAbout_TV_Click() {
    ShowSingle(m_frmAbout, m_environment);
}

void frmMain::mnu_DOnate_Click() {
    ShowSingle(m_frmDonate, m_environment);
}

void frmMain::mnuWorkbench_Click() {
    if (!m_workbench) {
        m_workbench = std::make_unique<Workbench>(
            m_plan, m_history,
            [this] { return m_Fra_Rest->SecondsBefore()->currentText().toStdString(); },
            m_environment);
        m_workbench->SetPictures(m_Fra_Rest->ItemPictures());
        connect(m_workbench.get(), &Workbench::ListEdited, this, &frmMain::AdoptRows);
        connect(m_workbench.get(), &Workbench::UndoRequested, this, &frmMain::Undo);
        connect(m_workbench.get(), &Workbench::RedoRequested, this, &frmMain::Redo);
    }
    m_workbench->Open(m_configuration);
}

void frmMain::ShowSkin(Byte mode, const std::string& path) {
    ApplySkin(mode, path, *m_Fra_Rest, m_environment.programFolder);
    if (m_workbench) {
        m_workbench->SetPictures(m_Fra_Rest->ItemPictures());
    }
}

void frmMain::Cmd_ApplySkin_Click() {
    const Byte source = m_Fra_Skin->ChosenSource();
    QLineEdit& path = *m_Fra_Skin->txt_Pfad;
    if (source == kWebSkin) {
        const auto folder = m_environment.programFolder / "img" / "skins" / kWebSkinFolder;
        ShowSkin(kWebSkin, {});
        const auto outcome = FetchWebSkin(path.text().toStdString(), folder, m_environment,
                                          [this] { return !IsClosed(); });
        ShowSkin(outcome == WebSkinOutcome::Completed ? kLocalSkin : kStandardSkin, kWebSkinFolder);
        if (path.text().endsWith(QLatin1Char('/'))) {
            path.setText(path.text().chopped(1));
        }
    } else {
        ShowSkin(source, m_Fra_Skin->Comb_Skins->currentText().toStdString());
    }
    m_Fra_Skin->hide();
}

void frmMain::BringToFront(QWidget& panel) {
    panel.raise();
    m_TopLine->raise();
}

void frmMain::Toggle(Panel& panel) {
    panel.setVisible(panel.isHidden());
    BringToFront(panel);
    if (panel.isVisible()) {
        panel.TakeFocus();
    }
}

void frmMain::mnuEinstellungen_Click() {
    Toggle(*m_Fra_Einstellungen);
}

void frmMain::mnu_SpecialEvents_Click() {
    Toggle(*m_Fra_Special);
    m_Fra_Skin->hide();
    m_Fra_Skin->FillSkinList();
    m_Fra_Sleep->hide();
}

void frmMain::mnuSkin_Click() {
    Toggle(*m_Fra_Skin);
    m_Fra_Special->hide();
    m_Fra_Skin->FillSkinList();
    m_Fra_Sleep->hide();
}

void frmMain::mnuSleep_Click() {
    Toggle(*m_Fra_Sleep);
    m_Fra_Special->hide();
    m_Fra_Skin->hide();
    m_Fra_Sleep->RefreshSchlafEnde();
}

void frmMain::Img_MouseMove(const ItemTile& tile) {
    tile.picture->SetGate(HoverInfoFor(tile.item, m_plan.LV_Bauliste.Orders(), m_run.conditions));
}

void frmMain::FinishEdit(std::string_view input) {
    if (m_history.Record(SnapshotOf(m_plan), input)) {
        RefreshWorkbench();
    }
}

void frmMain::Undo() {
    if (m_history.CanUndo()) {
        SetPlan(m_history.Undo());
    }
}

void frmMain::Redo() {
    if (m_history.CanRedo()) {
        SetPlan(m_history.Redo());
    }
}

void frmMain::AdoptRows(const std::vector<std::string>& tags,
                        const std::optional<SleepRow>& pause) {
    PlanSnapshot snapshot = SnapshotOf(m_plan);
    snapshot.tags = tags;
    if (pause) {
        snapshot.Schlafzeiten.insert(snapshot.Schlafzeiten.begin(), *pause);
    }
    static_cast<void>(m_history.Record(snapshot));
    SetPlan(snapshot);
}

void frmMain::SetPlan(const PlanSnapshot& snapshot) {
    m_plan.parameters = snapshot.parameters;
    m_Fra_Einstellungen->Refresh();
    if (m_plan.LV_Schlafzeiten != snapshot.Schlafzeiten) {
        m_plan.LV_Schlafzeiten = snapshot.Schlafzeiten;
        m_Fra_Sleep->Refresh();
    }
    // The factor texts depend on the temperature, and have to fit the run that follows.
    m_run.conditions.Temperatur =
        ParseTemperature(m_plan.parameters).value_or(m_run.conditions.Temperatur);
    m_plan.LV_Bauliste.SetTags(snapshot.tags, m_run.conditions);
    m_Fra_Rest->ShowList();
    RunQuietly();
    RefreshWorkbench();
}

// The workbench shows the messages instead.
void frmMain::RunQuietly() {
    Chk_Speedfaktor_Click();
    const auto conditions = ParseRunConditions(m_plan);
    if (const auto* const parsed = std::get_if<RunConditions>(&conditions)) {
        m_run.ResetSimulation(*parsed);
        m_texts.AfterReset();
        std::vector<Message> messages;
        MessageCollector collector(messages);
        tarvelin::RunSimulation(m_plan.LV_Bauliste.Orders().All(), m_run, collector);
        m_texts.AfterRun(m_run.state);
    } else if (m_plan.LV_Bauliste.Orders().IsEmpty()) {
        m_run.ResetSimulation(m_plan.parameters);
        m_texts.AfterReset();
        m_texts.AfterClear();
    }
    m_Fra_Rest->ShowResult(m_texts);
    m_Fra_Rest->ShowSchedule();
}

void frmMain::RefreshWorkbench() {
    if (m_workbench) {
        m_workbench->RefreshPlan();
    }
}

void frmMain::LV_Bauliste_DragDrop(const QString& Source) {
    const auto item = ItemFromPicture(Source.toStdString());
    std::optional<Message> message;
    if (item) {
        message = m_plan.LV_Bauliste.AddItem(*item, m_run.conditions);
    } else {
        message = Message{.text = "KA", .title = "", .icon = MessageIcon::None};
    }
    if (message) {
        // Not within the drag, which still holds the mouse.
        QTimer::singleShot(0, this, [this, text = *message] { m_environment.dialogs.Show(text); });
        return;
    }
    ShowNewRow();
    FinishEdit();
}

void frmMain::Cmd_AddProdaenderungsevent_Click() {
    const auto message =
        m_plan.LV_Bauliste.AddProduction(m_Fra_Special->Factors(), m_run.conditions);
    if (message) {
        m_environment.dialogs.Show(*message);
        return;
    }
    ShowNewRow();
    FinishEdit();
}

void frmMain::ShowNewRow() {
    m_Fra_Rest->ShowList();
    m_Fra_Rest->ScrollToLast();
}

void frmMain::Cmd_Undo_Click() {
    m_plan.LV_Bauliste.RemoveLast();
    m_Fra_Rest->ShowList();
    FinishEdit();
}

void frmMain::Cmd_Clear_Click() {
    ClearList();
    FinishEdit();
}

void frmMain::ClearList() {
    m_plan.LV_Bauliste.Clear();
    m_texts.AfterClear();
    m_Fra_Rest->ShowList();
    m_Fra_Rest->ShowResult(m_texts);
}

void frmMain::Cmd_Simulate_Click() {
    m_Fra_Einstellungen->hide();
    m_Fra_Special->hide();
    m_Fra_Skin->hide();
    m_Fra_Sleep->hide();
    RunSimulation(false);
}

void frmMain::Chk_Speedfaktor_Click() {
    m_run.conditions.Speedfaktor = m_plan.parameters.Speedfaktor();
}

void frmMain::ShowPlan() {
    m_Fra_Einstellungen->Refresh();
    Chk_Speedfaktor_Click();
    m_Fra_Sleep->Refresh();
    m_Fra_Rest->ShowNames(m_plan.ShowDesc);
    ShowNewRow();
}

void frmMain::RunSimulation(bool Silent) {
    Chk_Speedfaktor_Click();
    const auto conditions = CheckInputs(Silent);
    if (!conditions) {
        return;
    }
    m_run.ResetSimulation(*conditions);
    m_texts.AfterReset();
    m_Fra_Rest->ShowResult(m_texts);
    ShowRunSoFar();
    m_Fra_Rest->ScrollScheduleToTop();
    m_Fra_Einstellungen->RefreshWeekday();
    WindowMessages messages([this] { ShowRunSoFar(); }, m_environment.dialogs);
    tarvelin::RunSimulation(m_plan.LV_Bauliste.Orders().All(), m_run, messages);
    m_texts.AfterRun(m_run.state);
    m_Fra_Rest->ShowResult(m_texts);
    m_Fra_Rest->ShowSchedule();
}

std::optional<RunConditions> frmMain::CheckInputs(bool Silent) {
    const bool empty = m_plan.LV_Bauliste.Orders().IsEmpty();
    if (!empty) {
        FillStartDate();
    }
    const auto conditions = ParseRunConditions(m_plan);
    const auto* const refusal = std::get_if<Message>(&conditions);
    if (refusal == nullptr) {
        return std::get<RunConditions>(conditions);
    }
    if (!Silent || !empty) {
        ShowRunSoFar();
        m_environment.dialogs.Show(*refusal);
    }
    return std::nullopt;
}

// Not an edit: nothing to undo, and a saved plan still counts as saved.
void frmMain::FillStartDate() {
    const bool isInFile = m_saved == SnapshotOf(m_plan);
    const StartParameters before = m_plan.parameters;
    PadStartDate(m_plan.parameters);
    m_history.RewriteDay(before, m_plan.parameters);
    if (isInFile) {
        m_saved = SnapshotOf(m_plan);
    }
}

void frmMain::ShowRunSoFar() {
    // Day and month may have been padded.
    m_Fra_Einstellungen->Refresh();
    m_Fra_Rest->ShowSchedule();
}

}  // namespace tarvelin
