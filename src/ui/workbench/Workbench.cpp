// Life of the workbench: its actions, and how it follows the document, the clock and the desktop.
#include "ui/workbench/Workbench.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHideEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QToolBar>
#include <algorithm>
#include <chrono>
#include <map>
#include <utility>

#include "export/Calendar.h"
#include "export/Timetable.h"
#include "model/ItemTable.h"
#include "persistence/AtomicWrite.h"
#include "simulation/DueAlarms.h"
#include "ui/services/SvgImage.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/widgets/Pictures.h"
#include "ui/workbench/TimelinePicture.h"
#include "ui/workbench/WindowPlace.h"
#include "ui/workbench/WorkbenchColors.h"

namespace tarvelin {

namespace {

/// Initial size of the window, in line heights.
constexpr QSize kInitialLines(96, 54);

/// When an action can be carried out.
enum class Needs { Nothing, ChosenRow, Run, UndoStep, RedoStep };

enum class Menu { File, Edit, View };

/// Where an action stands besides its menu.
enum Place : unsigned { kMenuOnly = 0, kToolBar = 1, kContextMenu = 2 };

}  // namespace

struct Workbench::ActionRow {
    const char* name;
    Menu menu;
    const char* text;
    /// May be empty.
    QKeySequence key;
    Needs needs;
    unsigned places;
    void (Workbench::*operation)();
    /// Whether a line stands above it.
    bool beginsGroup = false;
};

const std::vector<Workbench::ActionRow>& Workbench::ActionRows() {
    constexpr unsigned kBoth = kToolBar | kContextMenu;
    // clang-format off
    static const std::vector<ActionRow> rows{
        {"Cmd_Neu",               Menu::File, "&Neu",                   Qt::CTRL | Qt::Key_N,             Needs::Nothing,   kToolBar,  &Workbench::New},
        {"Cmd_Oeffnen",           Menu::File, "Ö&ffnen",                Qt::CTRL | Qt::Key_O,             Needs::Nothing,   kToolBar,  &Workbench::Open},
        {"Cmd_Speichern",         Menu::File, "&Speichern",             Qt::CTRL | Qt::Key_S,             Needs::Nothing,   kToolBar,  &Workbench::Save, true},
        {"Cmd_SpeichernUnter",    Menu::File, "Speichern &unter ...",   Qt::CTRL | Qt::SHIFT | Qt::Key_S, Needs::Nothing,   kMenuOnly, &Workbench::SaveAs},
        {"Cmd_KalenderSpeichern", Menu::File, "&Kalender",              {},                               Needs::Run,       kToolBar,  &Workbench::SaveCalendar, true},
        {"Cmd_BildSpeichern",     Menu::File, "Als &Bild",              {},                               Needs::Run,       kToolBar,  &Workbench::SavePicture},
        {"Cmd_Kopieren",          Menu::File, "&Zeitplan kopieren",     {},                               Needs::Run,       kMenuOnly, &Workbench::CopyTimetable},
        {"Cmd_Schliessen",        Menu::File, "&Werkbank schließen",    Qt::CTRL | Qt::Key_W,             Needs::Nothing,   kMenuOnly, &Workbench::CloseWindow, true},
        {"Cmd_Zurueck",           Menu::Edit, "&Rückgängig",            Qt::CTRL | Qt::Key_Z,             Needs::UndoStep,  kToolBar,  &Workbench::Undo},
        {"Cmd_Vor",               Menu::Edit, "&Wiederholen",           Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Needs::RedoStep,  kToolBar,  &Workbench::Redo},
        {"Cmd_Hoch",              Menu::Edit, "&Hoch",                  Qt::ALT | Qt::Key_Up,             Needs::ChosenRow, kBoth,     &Workbench::MoveUp, true},
        {"Cmd_Runter",            Menu::Edit, "R&unter",                Qt::ALT | Qt::Key_Down,           Needs::ChosenRow, kBoth,     &Workbench::MoveDown},
        {"Cmd_Verdopple",         Menu::Edit, "&Verdoppeln",            Qt::CTRL | Qt::Key_D,             Needs::ChosenRow, kBoth,     &Workbench::DuplicateChosen},
        {"Cmd_Loesche",           Menu::Edit, "&Löschen",               Qt::Key_Delete,                   Needs::ChosenRow, kBoth,     &Workbench::RemoveChosen},
        {"Cmd_AllesWaehlen",      Menu::Edit, "&Alles wählen",          Qt::CTRL | Qt::Key_A,             Needs::Nothing,   kMenuOnly, &Workbench::ChooseAll, true},
        {"Cmd_GanzerPlan",        Menu::View, "&Ganzer Plan",           Qt::CTRL | Qt::Key_0,             Needs::Run,       kMenuOnly, &Workbench::ShowWholePlan}};
    // clang-format on
    return rows;
}

Workbench::Workbench(Document& document, std::function<std::string()> leadTime,
                     const Environment& environment)
    : m_document(document),
      m_leadTime(std::move(leadTime)),
      m_environment(environment),
      m_surface(new WorkbenchSurface(document, environment, this)),
      m_status(new WorkbenchStatusBar(this)) {
    setObjectName(QStringLiteral("frmWerkbank"));
    setWindowIcon(LoadIconFile(environment.programFolder / "img" / "icon.ico"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setCentralWidget(m_surface);
    setStatusBar(m_status);
    setContextMenuPolicy(Qt::NoContextMenu);
    AddActions();
    ConnectSignals();
    FollowDesktop();
    ShowTitle();
}

void Workbench::AddActions() {
    QMenu* const file = menuBar()->addMenu(QStringLiteral("&Datei"));
    const std::map<Menu, QMenu*> menus{
        {Menu::File, file},
        {Menu::Edit, menuBar()->addMenu(QStringLiteral("&Bearbeiten"))},
        {Menu::View, menuBar()->addMenu(QStringLiteral("&Ansicht"))}};
    QToolBar* const toolBar = addToolBar(QStringLiteral("Werkzeuge"));
    toolBar->setObjectName(QStringLiteral("Werkzeuge"));
    toolBar->setMovable(false);
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_surface->List().setContextMenuPolicy(Qt::ActionsContextMenu);
    for (const ActionRow& row : ActionRows()) {
        QMenu& menu = *menus.at(row.menu);
        if (row.beginsGroup) {
            menu.addSeparator();
        }
        QAction* const action = menu.addAction(QString::fromUtf8(row.text));
        action->setObjectName(QString::fromLatin1(row.name));
        action->setShortcut(row.key);
        connect(action, &QAction::triggered, this, row.operation);
        if ((row.places & kToolBar) != 0) {
            if (row.beginsGroup) {
                toolBar->addSeparator();
            }
            toolBar->addAction(action);
        }
        if ((row.places & kContextMenu) != 0) {
            m_surface->List().addAction(action);
        }
        m_actions.push_back(action);
    }
    AddRecentFiles(*file);
    AddPageActions(*menus.at(Menu::View));
}

void Workbench::AddRecentFiles(QMenu& menu) {
    auto* const recent = new QMenu(QStringLiteral("&Zuletzt geöffnet"), &menu);
    recent->setObjectName(QStringLiteral("Zuletzt"));
    // Behind "Öffnen".
    menu.insertMenu(m_actions[2], recent);
    connect(recent, &QMenu::aboutToShow, this, [this, recent] {
        recent->clear();
        for (const auto& file : m_document.RecentFiles()) {
            QAction* const action = recent->addAction(
                PathToQString(file.filename()).replace(QLatin1Char('&'), QStringLiteral("&&")));
            action->setToolTip(PathToQString(file));
            connect(action, &QAction::triggered, this,
                    [this, file] { m_document.LoadBauliste(file, false); });
        }
        if (recent->isEmpty()) {
            recent->addAction(QStringLiteral("noch kein Plan"))->setEnabled(false);
        }
    });
    recent->setToolTipsVisible(true);
}

void Workbench::AddPageActions(QMenu& menu) {
    menu.addSeparator();
    QTabWidget& pages = m_surface->Pages();
    for (int i = 0; i < pages.count(); ++i) {
        QAction* const action = menu.addAction(pages.tabText(i));
        action->setShortcut(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + i));
        connect(action, &QAction::triggered, this, [&pages, i] {
            pages.setCurrentIndex(i);
            pages.currentWidget()->setFocus();
        });
    }
}

void Workbench::ConnectSignals() {
    m_document.Observe([this](const DocumentChange& change) {
        if (change.conditions) {
            m_surface->ShowConditions();
        }
        if (change.plan) {
            ShowPlan();
        }
        ShowTitle();
    });
    connect(m_surface, &WorkbenchSurface::Notice, m_status, &WorkbenchStatusBar::ShowMessage);
    connect(&m_surface->List(), &OrderListView::ChoiceChanged, this, &Workbench::EnableActions);
    connect(&m_surface->List(), &OrderListView::RowsDropped, this, [this](std::size_t before) {
        EditChosen([before](ListEdit& edit, const auto& rows) { edit.MoveBefore(before, rows); });
    });
    connect(&m_surface->List(), &OrderListView::PictureDropped, this,
            [this](const QString& picture, std::size_t before) {
                if (const auto item = ItemFromPicture(picture.toStdString())) {
                    InsertRow(Order::Of(*item), before);
                }
            });
    connect(&m_surface->Palette(), &ItemPalette::ItemChosen, this,
            [this](ItemId item) { InsertRow(Order::Of(item), InsertPosition()); });
    connect(
        &m_surface->Palette(), &ItemPalette::ProductionChosen, this,
        [this](const MineFactors& factors) { InsertRow(Order::Of(factors), InsertPosition()); });
    connect(&m_timer, &QTimer::timeout, this, &Workbench::Tick);
}

void Workbench::FollowDesktop() {
    const QPalette palette = ColorsFor(m_environment.desktopPalette()).Palette();
    setPalette(palette);
    setFont(DesktopFont());
    m_surface->FollowDesktop(palette);
}

bool Workbench::event(QEvent* event) {
    if (event->type() == QEvent::ThemeChange) {
        FollowDesktop();
    }
    return QMainWindow::event(event);
}

void Workbench::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    ShowPlan();
    m_timer.SetRunning(true);
    Tick();
}

void Workbench::hideEvent(QHideEvent* event) {
    // Not when the window is minimized.
    if (!event->spontaneous()) {
        m_timer.SetRunning(false);
        m_surface->Search().StopSearch();
    }
    QMainWindow::hideEvent(event);
}

void Workbench::OpenWindow(const Configuration& configuration) {
    if (!m_wasOpen) {
        m_wasOpen = true;
        RestorePlace(*this, configuration, kInitialLines * fontMetrics().height());
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

Configuration::Values Workbench::Settings() const {
    return m_wasOpen ? PlaceOf(*this) : Configuration::Values();
}

void Workbench::ShowPlan() {
    if (!isVisible()) {
        return;
    }
    m_surface->ShowPlan(m_nextChosen.value_or(m_surface->List().ChosenRows()));
    m_status->ShowFigures(m_document);
    m_nextChosen.reset();
    EnableActions();
    Tick();
}

void Workbench::ShowTitle() {
    const auto& file = m_document.File();
    // In a window title "[*]" is a placeholder of the toolkit; doubled, it is shown.
    const QString name = file ? PathToQString(file->filename())
                                    .replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"))
                              : QStringLiteral("Unbenannt");
    setWindowTitle(name + QStringLiteral("[*] – Tarvelin Werkbank"));
    setWindowModified(m_document.IsModified());
}

void Workbench::EnableActions() {
    const auto fulfilled = [this](Needs needs) {
        switch (needs) {
            case Needs::Nothing:
                return true;
            case Needs::ChosenRow:
                return !m_surface->List().ChosenRows().empty();
            case Needs::UndoStep:
                return m_document.CanUndo();
            case Needs::RedoStep:
                return m_document.CanRedo();
            case Needs::Run:
                break;
        }
        return m_document.Trace().has_value();
    };
    for (std::size_t i = 0; i < m_actions.size(); ++i) {
        m_actions[i]->setEnabled(fulfilled(ActionRows()[i].needs));
    }
    ShowObjections();
}

void Workbench::ShowObjections() {
    m_surface->Palette().SetObjections([&](ItemId item) {
        ListEdit edit(m_document.CurrentPlan().LV_Bauliste);
        edit.Insert(InsertPosition(), Order::Of(item));
        return edit.Objection();
    });
}

void Workbench::Tick() {
    m_surface->ShowNow(m_environment.now());
}

void Workbench::ApplyEdit(const ListEdit& edit, std::vector<std::size_t> chosen) {
    const auto orders = edit.Orders();
    if (std::ranges::equal(orders, m_document.CurrentPlan().LV_Bauliste.Orders().All())) {
        return;
    }
    if (const auto objection = edit.Objection()) {
        m_status->ShowMessage(*objection);
        return;
    }
    m_nextChosen = std::move(chosen);
    m_document.Edit(orders);
}

template <class Step>
void Workbench::EditChosen(Step step) {
    ListEdit edit(m_document.CurrentPlan().LV_Bauliste);
    step(edit, m_surface->List().ChosenRows());
    ApplyEdit(edit, edit.Affected());
}

void Workbench::Open() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Load);
    if (!file.empty()) {
        m_document.LoadBauliste(file, false);
    }
}

void Workbench::Save() {
    if (const auto file = m_document.File()) {
        SaveTo(*file);
    } else {
        SaveAs();
    }
}

void Workbench::SaveAs() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Save);
    if (!file.empty()) {
        SaveTo(file);
    }
}

void Workbench::SaveTo(const std::filesystem::path& file) {
    if (m_document.SaveBauliste(file)) {
        m_status->ShowMessage("Gespeichert: " + PathToQString(file).toStdString());
    }
}

void Workbench::MoveUp() {
    EditChosen([](ListEdit& edit, const auto& rows) { edit.MoveUp(rows); });
}

void Workbench::MoveDown() {
    EditChosen([](ListEdit& edit, const auto& rows) { edit.MoveDown(rows); });
}

void Workbench::RemoveChosen() {
    EditChosen([](ListEdit& edit, const auto& rows) { edit.Remove(rows); });
}

void Workbench::DuplicateChosen() {
    EditChosen([](ListEdit& edit, const auto& rows) { edit.Duplicate(rows); });
}

void Workbench::ChooseAll() {
    m_surface->List().selectAll();
}

void Workbench::ShowWholePlan() {
    m_surface->Timeline().ShowAll();
}

// The chosen rows stay chosen, so the next row is inserted behind this one.
void Workbench::InsertRow(const Order& order, std::size_t before) {
    ListEdit edit(m_document.CurrentPlan().LV_Bauliste);
    edit.Insert(before, order);
    auto chosen = m_surface->List().ChosenRows();
    for (std::size_t& row : chosen) {
        row += row >= before ? 1 : 0;
    }
    ApplyEdit(edit, std::move(chosen));
}

std::size_t Workbench::InsertPosition() const {
    const auto chosen = m_surface->List().ChosenRows();
    return chosen.empty() ? m_document.CurrentPlan().LV_Bauliste.Orders().Size() : chosen.front();
}

void Workbench::SavePicture() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Picture);
    if (file.empty()) {
        return;
    }
    const auto picture =
        RenderTimeline(m_surface->Timeline(), QFileInfo(PathToQString(file)).suffix());
    if (!picture) {
        m_status->ShowMessage(std::string("Der Name des Bildes endet auf .png, ") +
                              (HasSvg() ? ".svg " : "") +
                              "oder .pdf: es wurde nichts gespeichert.");
        return;
    }
    SaveBytes(file, picture->toStdString());
}

void Workbench::CopyTimetable() {
    auto* const content = new QMimeData;
    content->setText(ToQString(TimetableTsv(*m_document.Trace())));
    content->setHtml(ToQString(TimetableHtml(*m_document.Trace())));
    // The clipboard owns it.
    QGuiApplication::clipboard()->setMimeData(content);
    m_status->ShowMessage("Der Zeitplan liegt in der Zwischenablage.");
}

void Workbench::SaveCalendar() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Calendar);
    if (!file.empty()) {
        const auto createdAt =
            std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
        SaveBytes(file, CalendarText(*m_document.Trace(), ParseLeadTime(m_leadTime()), createdAt));
    }
}

void Workbench::SaveBytes(const std::filesystem::path& file, const std::string& bytes) {
    m_status->ShowMessage(
        WriteFileAtomically(file, bytes, m_environment.files)
            ? "Gespeichert: " + PathToQString(file).toStdString()
            : "Die Datei konnte nicht gespeichert werden: wähle einen Ordner, in dem du schreiben "
              "kannst.");
}

}  // namespace tarvelin
