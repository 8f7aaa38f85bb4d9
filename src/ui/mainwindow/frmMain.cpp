// Layout and handlers of the classic window.
#include "ui/mainwindow/frmMain.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QIcon>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QTableView>
#include <QWindow>
#include <algorithm>
#include <chrono>

#include "plan/HoverInfo.h"
#include "ui/mainwindow/ApplySkin.h"
#include "ui/mainwindow/MakerSite.h"
#include "ui/mainwindow/WebSkin.h"
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

frmMain::frmMain(Document& document, const Environment& environment)
    : m_document(document),
      m_environment(environment),
      m_configuration(environment.programFolder, environment.files),
      m_scrollArea(new QScrollArea(this)),
      m_surface(new QWidget(this)),
      m_Fra_Einstellungen(new Fra_Einstellungen(document, m_surface)),
      m_Fra_Special(new Fra_Special(document, environment.dialogs, m_surface)),
      m_Fra_Skin(new Fra_Skin(environment.programFolder / "img" / "skins", m_surface)),
      m_Fra_Sleep(new Fra_Sleep(document, environment, m_surface)),
      m_Fra_Rest(new Fra_Rest(document, m_surface)),
      m_TopLine(new QFrame(m_surface)),
      m_menu(new MenuBar(this)),
      m_alarms(new Alarms({.LV_Bauzeiten = document.CurrentRun().LV_Bauzeiten,
                           .LV_Schlafzeiten = document.CurrentPlan().LV_Schlafzeiten,
                           .Chk_BauWeckfunktion = *m_Fra_Rest->BuildAlarmSwitch(),
                           .Chk_Schlafzeitenwecker = *m_Fra_Sleep->AlarmSwitch(),
                           .Comb_Before = *m_Fra_Rest->SecondsBefore()},
                          environment, m_surface)) {
    setObjectName(QStringLiteral("frmMain"));
    Arrange();
    AddMenus();
    ConnectSignals();
    LoadPictures();
    ShowChange({.rows = DocumentChange::Rows::Changed,
                .conditions = true,
                .sleepTable = true,
                .showDesc = true,
                .results = DocumentChange::Results::Changed,
                .title = true});
    ShowToday();
}

void frmMain::ShowChange(const DocumentChange& change) {
    if (change.conditions || change.showDesc) {
        m_Fra_Einstellungen->Refresh();
    }
    if (change.sleepTable) {
        m_Fra_Sleep->Refresh();
    }
    m_Fra_Rest->ShowChange(change);
    if (change.results == DocumentChange::Results::NewRun) {
        m_Fra_Einstellungen->RefreshWeekday();
    }
    if (change.title) {
        // In a window title "[*]" is a placeholder of the toolkit; doubled, it is shown.
        setWindowTitle(
            ToQString(m_document.Title()).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
    }
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
    m_document.Observe([this](const DocumentChange& change) { ShowChange(change); });
    connect(m_Fra_Rest, &Fra_Rest::DragDrop, this, &frmMain::LV_Bauliste_DragDrop);
    connect(m_Fra_Rest, &Fra_Rest::Cmd_Undo_Click, this, &frmMain::Cmd_Undo_Click);
    connect(m_Fra_Rest, &Fra_Rest::Cmd_Clear_Click, this, &frmMain::Cmd_Clear_Click);
    connect(m_Fra_Rest, &Fra_Rest::Cmd_Simulate_Click, this, &frmMain::Cmd_Simulate_Click);
    connect(m_Fra_Rest, &Fra_Rest::ImgDonate_Click, this, &frmMain::mnu_DOnate_Click);
    connect(m_Fra_Rest, &Fra_Rest::Img_MouseMove, this, &frmMain::Img_MouseMove);
    connect(m_Fra_Skin, &Fra_Skin::Cmd_ApplySkin_Click, this, &frmMain::Cmd_ApplySkin_Click);
    m_Tmr_Autosave.setObjectName(QStringLiteral("Tmr_Autosave"));
    connect(&m_Tmr_Autosave, &QTimer::timeout, this, [this] { m_document.WriteAutosave(); });
}

QAction* frmMain::NewMenuEntry(QWidget* menu, const char* name, const char* text) {
    auto* const entry = new QAction(QString::fromLatin1(text), this);
    entry->setObjectName(QString::fromLatin1(name));
    menu->addAction(entry);
    return entry;
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
    file->addSeparator()->setObjectName(QStringLiteral("mnu_Datei_Strich01"));
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
    info->addSeparator()->setObjectName(QStringLiteral("strich_02"));
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

// Not from the inputs, as an invalid hour would show an error.
void frmMain::ShowToday() {
    m_Fra_Einstellungen->Refresh(WeekdayOf(m_environment.now()));
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

void frmMain::ShowSkin(Byte mode, const std::string& path) {
    ApplySkin(mode, path, *m_Fra_Rest, m_environment.programFolder);
    emit SkinChanged();
}

void frmMain::Cmd_ApplySkin_Click() {
    const Byte source = m_Fra_Skin->ChosenSource();
    if (source == kWebSkin) {
        const auto folder = m_environment.programFolder / "img" / "skins" / kWebSkinFolder;
        ShowSkin(kWebSkin, {});
        const std::string address = m_Fra_Skin->WebPath();
        const auto outcome =
            FetchWebSkin(address, folder, m_environment, [this] { return !m_document.IsClosed(); });
        ShowSkin(outcome == WebSkinOutcome::Completed ? kLocalSkin : kStandardSkin, kWebSkinFolder);
        if (address.ends_with('/')) {
            m_Fra_Skin->SetWebPath(address.substr(0, address.size() - 1));
        }
    } else {
        ShowSkin(source, m_Fra_Skin->SkinFolder());
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
    tile.picture->SetGate(HoverInfoFor(tile.item, m_document.CurrentPlan().LV_Bauliste.Orders(),
                                       m_document.CurrentRun().conditions));
}

void frmMain::LV_Bauliste_DragDrop(const QString& Source) {
    const auto item = ItemFromPicture(Source.toStdString());
    const auto message =
        item ? m_document.AddItem(*item)
             : std::optional(Message{.text = "KA", .title = "", .icon = MessageIcon::None});
    if (message) {
        // Not within the drag, which still holds the mouse.
        QTimer::singleShot(0, this, [this, text = *message] { m_environment.dialogs.Show(text); });
    }
}

void frmMain::Cmd_Undo_Click() {
    m_document.RemoveLast();
}

void frmMain::Cmd_Clear_Click() {
    m_document.Clear();
}

void frmMain::Cmd_Simulate_Click() {
    m_Fra_Einstellungen->hide();
    m_Fra_Special->hide();
    m_Fra_Skin->hide();
    m_Fra_Sleep->hide();
    m_document.RunSimulation(false);
}

void frmMain::mnu_DateiNeu_Click() {
    m_document.New();
    m_Fra_Einstellungen->show();
    m_Fra_Skin->hide();
    m_Fra_Sleep->hide();
    ShowToday();
    m_alarms->ReadConfiguration();
}

void frmMain::mnu_DateiLaden_Click() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Load);
    if (!file.empty()) {
        m_document.LoadBauliste(file, false);
    }
}

void frmMain::mnu_Datei_Speichern_Click() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Save);
    if (!file.empty()) {
        m_document.SaveBauliste(file);
    }
}

void frmMain::Form_Load() {
    if (m_document.IsClosed()) {
        return;
    }
    m_Fra_Skin->FillSkinList();
    m_alarms->ReadConfiguration();
    ReadSkin();
    show();
    connect(windowHandle(), &QWindow::screenChanged, this, &frmMain::FollowScreen);
    FollowScreen();
    WaitUntilExposed();
    if (m_document.Start(m_environment.startNotice, m_environment.planArgument)) {
        m_Fra_Einstellungen->hide();
    }
    if (m_document.IsWorking()) {
        constexpr std::chrono::seconds kInterval(4);
        m_Tmr_Autosave.start(kInterval);
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
    m_Fra_Skin->SetWebPath(m_configuration.Read(Configuration::kWebPath));
    m_Fra_Skin->ChooseSource(mode);
    ShowSkin(mode == kWebSkin ? kLocalSkin : mode, m_configuration.Read(Configuration::kPath));
}

Configuration::Values frmMain::Settings() const {
    Configuration::Values settings = m_Fra_Skin->Settings();
    const auto add = [&](const ConfigKey& key, const QCheckBox& box) {
        settings.emplace_back(key, box.isChecked() ? "1" : "0");
    };
    add(Configuration::kBaulistenwecker, *m_Fra_Rest->BuildAlarmSwitch());
    add(Configuration::kSchlafzeitenwecker, *m_Fra_Sleep->AlarmSwitch());
    return settings;
}

std::string frmMain::SecondsBefore() const {
    return m_Fra_Rest->SecondsBefore()->currentText().toStdString();
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!m_document.IsClosed()) {
        Form_Unload();
    }
    QMainWindow::closeEvent(event);
    emit Closed();
}

void frmMain::Form_Unload() {
    m_Tmr_Autosave.stop();
    m_alarms->Silence();
    emit Closing();
    m_environment.dialogs.CloseAll();
    m_environment.fetcher.Abort();
}

}  // namespace tarvelin
