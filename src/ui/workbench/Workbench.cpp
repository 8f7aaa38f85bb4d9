// Life of the workbench: its actions, and how it follows the document, the clock and the desktop.
#include "ui/workbench/Workbench.h"

#include <QHideEvent>
#include <QMenuBar>
#include <algorithm>
#include <utility>

#include "simulation/DueAlarms.h"
#include "simulation/StatusTexts.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/widgets/Pictures.h"
#include "ui/workbench/FocusFrame.h"
#include "ui/workbench/HelpTopics.h"
#include "ui/workbench/Icons.h"
#include "ui/workbench/PlainStyle.h"
#include "ui/workbench/PlanExports.h"
#include "ui/workbench/WindowPlace.h"
#include "ui/workbench/WorkbenchColors.h"

namespace tarvelin {

namespace {

/// Initial size of the window, in line heights.
constexpr QSize kInitialLines(96, 56);

/// When an action can be carried out.
enum class Needs { Nothing, ChosenRow, Run, UndoStep, RedoStep, NoSearch, Search, Find };

enum class Menu { File, Edit, View, Search, Help, Size };

constexpr EnumArray<Menu, const char*> kMenus{
    {"&Datei", "&Bearbeiten", "&Ansicht", "&Suche", "&Hilfe"}};

/// Where an action stands besides its menu.
enum Place : unsigned {
    kMenuOnly = 0,
    kToolBar = 1,
    kContextMenu = 2,
    kBoth = kToolBar | kContextMenu,
    /// At the right end of the tool bar.
    kAtEnd = kToolBar | 4
};

}  // namespace

struct Workbench::ActionRow {
    const char* name;
    Menu menu;
    const char* text;
    /// For the tool bar.
    std::optional<Icon> icon;
    /// May be empty.
    QKeySequence key;
    Needs needs;
    Place places;
    void (Workbench::*operation)();
    /// Whether a line stands above it.
    bool beginsGroup = false;
};

const std::vector<Workbench::ActionRow>& Workbench::ActionRows() {
    // clang-format off
    static const std::vector<ActionRow> rows{
        {"Cmd_Neu",               Menu::File,   "&Neu",                 Icon::New,       Qt::CTRL | Qt::Key_N,             Needs::Nothing,   kToolBar,  &Workbench::New},
        {"Cmd_Oeffnen",           Menu::File,   "Ö&ffnen",              Icon::Open,      Qt::CTRL | Qt::Key_O,             Needs::Nothing,   kToolBar,  &Workbench::Open},
        {"Cmd_Speichern",         Menu::File,   "&Speichern",           Icon::Save,      Qt::CTRL | Qt::Key_S,             Needs::Nothing,   kToolBar,  &Workbench::Save},
        {"Cmd_SpeichernUnter",    Menu::File,   "Speichern &unter ...", {},              Qt::CTRL | Qt::SHIFT | Qt::Key_S, Needs::Nothing,   kMenuOnly, &Workbench::SaveAs},
        {"Cmd_Zurueck",           Menu::Edit,   "&Rückgängig",          Icon::Undo,      Qt::CTRL | Qt::Key_Z,             Needs::UndoStep,  kToolBar,  &Workbench::Undo, true},
        {"Cmd_Vor",               Menu::Edit,   "&Wiederholen",         Icon::Redo,      Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Needs::RedoStep,  kToolBar,  &Workbench::Redo},
        {"Cmd_Hoch",              Menu::Edit,   "&Hoch",                Icon::Up,        Qt::ALT | Qt::Key_Up,             Needs::ChosenRow, kBoth,     &Workbench::MoveUp, true},
        {"Cmd_Runter",            Menu::Edit,   "R&unter",              Icon::Down,      Qt::ALT | Qt::Key_Down,           Needs::ChosenRow, kBoth,     &Workbench::MoveDown},
        {"Cmd_Verdopple",         Menu::Edit,   "&Verdoppeln",          Icon::Duplicate, Qt::CTRL | Qt::Key_D,             Needs::ChosenRow, kBoth,     &Workbench::DuplicateChosen},
        {"Cmd_Loesche",           Menu::Edit,   "&Löschen",             Icon::Delete,    Qt::Key_Delete,                   Needs::ChosenRow, kBoth,     &Workbench::RemoveChosen},
        {"Cmd_AllesWaehlen",      Menu::Edit,   "&Alles wählen",        {},              Qt::CTRL | Qt::Key_A,             Needs::Nothing,   kMenuOnly, &Workbench::ChooseAll, true},
        {"Cmd_KalenderSpeichern", Menu::File,   "&Kalender",            Icon::Calendar,  {},                               Needs::Run,       kToolBar,  &Workbench::SaveCalendar, true},
        {"Cmd_BildSpeichern",     Menu::File,   "Als &Bild",            Icon::Picture,   {},                               Needs::Run,       kToolBar,  &Workbench::SavePicture},
        {"Cmd_Kopieren",          Menu::File,   "&Zeitplan kopieren",   {},              Qt::CTRL | Qt::SHIFT | Qt::Key_C, Needs::Run,       kMenuOnly, &Workbench::CopyTimetable},
        {"Cmd_Schliessen",        Menu::File,   "&Werkbank schließen",  {},              Qt::CTRL | Qt::Key_W,             Needs::Nothing,   kMenuOnly, &Workbench::CloseWindow, true},
        {"Cmd_GanzerPlan",        Menu::View,   "&Ganzer Plan",         Icon::WholePlan, Qt::CTRL | Qt::Key_0,             Needs::Run,       kMenuOnly, &Workbench::ShowWholePlan},
        {"Cmd_SucheBeginnen",     Menu::Search, "&Suchen",              Icon::Search,    Qt::CTRL | Qt::Key_F,             Needs::NoSearch,  kMenuOnly, &Workbench::StartSearch},
        {"Cmd_SucheAnhalten",     Menu::Search, "&Anhalten",            {},              {},                               Needs::Search,    kMenuOnly, &Workbench::StopSearch},
        {"Cmd_FundVergleichen",   Menu::Search, "&Mit Fund vergleichen", {},             {},                               Needs::Find,      kMenuOnly, &Workbench::CompareFind, true},
        {"Cmd_FundUebernehmen",   Menu::Search, "Fund ü&bernehmen",     {},              {},                               Needs::Find,      kMenuOnly, &Workbench::AcceptFind},
        {"Cmd_Anleitung",         Menu::Help,   "&Hilfe",               Icon::Help,      Qt::Key_F1,                       Needs::Nothing,   kAtEnd,    &Workbench::OpenGuide}};
    // clang-format on
    return rows;
}

Workbench::Workbench(Document& document, std::function<std::string()> leadTime,
                     const Environment& environment)
    : m_document(document),
      m_leadTime(std::move(leadTime)),
      m_environment(environment),
      m_surface(new WorkbenchSurface(document, environment, this)),
      m_status(new WorkbenchStatusBar(this)),
      m_toolBar(addToolBar(QStringLiteral("Werkzeuge"))),
      m_editor(document, m_surface->List()) {
    setObjectName(QStringLiteral("frmWerkbank"));
    setWindowIcon(LoadIconFile(environment.programFolder / "img" / "icon.ico"));
    setAttribute(Qt::WA_QuitOnClose, false);
    setCentralWidget(m_surface);
    setStatusBar(m_status);
    setContextMenuPolicy(Qt::NoContextMenu);
    // The window owns both.
    new FocusFrame(this);
    (new PlainStyle(this))->ApplyTo(*this);
    AddActions();
    ConnectSignals();
    m_startOfNights = ReadUniStartZeit(m_document.CurrentPlan().parameters);
    m_surface->Sleep().TakeRuleFromPlan();
    FollowDesktop();
    ShowTitle();
}

void Workbench::AddActions() {
    EnumArray<Menu, QMenu*> menus{};
    std::ranges::transform(kMenus, menus.begin(), [this](const char* caption) {
        return menuBar()->addMenu(QString::fromUtf8(caption));
    });
    m_toolBar->setObjectName(QStringLiteral("Werkzeuge"));
    m_toolBar->setMovable(false);
    m_surface->List().setContextMenuPolicy(Qt::ActionsContextMenu);
    for (const ActionRow& row : ActionRows()) {
        QMenu& menu = *menus[row.menu];
        if (row.beginsGroup && !menu.isEmpty()) {
            menu.addSeparator();
        }
        QAction* const action = menu.addAction(QString::fromUtf8(row.text));
        action->setObjectName(QString::fromLatin1(row.name));
        action->setShortcut(row.key);
        action->setIconVisibleInMenu(false);
        connect(action, &QAction::triggered, this, row.operation);
        if ((row.places & kToolBar) != 0) {
            if (row.beginsGroup) {
                m_toolBar->addSeparator();
            }
            if (row.places == kAtEnd) {
                auto* const space = new QWidget(m_toolBar);
                space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
                m_toolBar->addWidget(space);
            }
            m_toolBar->addAction(action);
        }
        if ((row.places & kContextMenu) != 0) {
            m_surface->List().addAction(action);
        }
        m_actions.push_back(action);
    }
    AddRecentFiles(*menus[Menu::File]);
    AddColumns(*menus[Menu::View]);
    AddPageActions(*menus[Menu::View]);
}

void Workbench::AddRecentFiles(QMenu& menu) {
    auto* const recent = new QMenu(QStringLiteral("&Zuletzt geöffnet"), &menu);
    recent->setObjectName(QStringLiteral("Zuletzt"));
    recent->setToolTipsVisible(true);
    // Behind "Öffnen".
    menu.insertMenu(menu.actions().at(2), recent);
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
}

void Workbench::AddColumns(QMenu& menu) {
    auto* const columns = new QMenu(QStringLiteral("&Spalten"), &menu);
    menu.addMenu(columns);
    OrderListView& list = m_surface->List();
    for (const OrderColumnRow& column : OrderColumns()) {
        if (!column.canHide) {
            continue;
        }
        QAction* const action = columns->addAction(QString::fromUtf8(column.name));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [&list, id = column.column](bool shown) {
            auto hidden = list.HiddenColumns();
            if (shown) {
                hidden.erase(id);
            } else {
                hidden.insert(id);
            }
            list.SetHiddenColumns(std::move(hidden));
        });
        connect(columns, &QMenu::aboutToShow, action, [&list, action, id = column.column] {
            action->setChecked(!list.HiddenColumns().contains(id));
        });
    }
    list.header()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list.header(), &QWidget::customContextMenuRequested, columns,
            [&list, columns](const QPoint& position) {
                columns->popup(list.header()->mapToGlobal(position));
            });
}

void Workbench::AddPageActions(QMenu& menu) {
    menu.addSeparator();
    QTabWidget& pages = m_surface->Pages();
    for (int i = 0; i < pages.count(); ++i) {
        QAction* const action = menu.addAction(pages.tabText(i));
        action->setShortcut(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + i));
        connect(action, &QAction::triggered, m_surface, [this, i] { m_surface->ShowPage(i); });
    }
}

void Workbench::ConnectSignals() {
    m_document.Observe([this](const DocumentChange& change) {
        if (change.sleepTable || change.rows == DocumentChange::Rows::Replaced) {
            m_startOfNights = ReadUniStartZeit(m_document.CurrentPlan().parameters);
        }
        if (change.conditions) {
            m_surface->ShowConditions();
        }
        if (change.rows == DocumentChange::Rows::Replaced) {
            m_surface->Sleep().TakeRuleFromPlan();
        }
        if (change.plan) {
            ShowPlan();
        }
        ShowTitle();
    });
    connect(m_surface, &WorkbenchSurface::Notice, m_status, &WorkbenchStatusBar::ShowMessage);
    connect(m_status, &WorkbenchStatusBar::RequestAccepted, this, &Workbench::AcceptRequest);
    connect(&m_editor, &RowEditor::Refused, this, &Workbench::ShowRefusal);
    connect(&m_surface->List(), &OrderListView::ChoiceChanged, this, &Workbench::EnableActions);
    connect(&m_surface->Search(), &SearchPage::StateChanged, this, &Workbench::EnableActions);
    connect(&m_surface->List(), &OrderListView::PictureDropped, this, &Workbench::InsertPicture);
    StartPage& start = m_surface->Start();
    connect(&start, &StartPage::PictureDropped, this,
            [this](const QString& picture) { InsertPicture(picture, 0); });
    connect(&start, &StartPage::OpenWanted, this, &Workbench::Open);
    connect(&start, &StartPage::FileChosen, this,
            [this](const std::filesystem::path& file) { m_document.LoadBauliste(file, false); });
    connect(&start, &StartPage::OpeningChosen, this,
            [this](const std::filesystem::path& file) { m_document.LoadAsNew(file); });
    connect(&m_surface->Palette(), &ItemPalette::ItemChosen, this,
            [this](ItemId item) { InsertRow(Order::Of(item)); });
    connect(&m_surface->Palette(), &ItemPalette::ProductionChosen, this,
            [this](const MineFactors& factors) { InsertRow(Order::Of(factors)); });
    connect(&m_timer, &QTimer::timeout, this, &Workbench::Tick);
}

void Workbench::FollowDesktop() {
    const WorkbenchColors colors = ColorsFor(m_environment.desktopPalette());
    setPalette(colors.Palette());
    setFont(DesktopFont());
    QPalette bars = colors.Palette();
    bars.setColor(QPalette::Window, colors[Color::Toolbar]);
    for (QWidget* const bar : std::initializer_list<QWidget*>{menuBar(), m_toolBar, m_status}) {
        bar->setPalette(bars);
    }
    for (std::size_t i = 0; i < m_actions.size(); ++i) {
        if (const auto icon = ActionRows()[i].icon) {
            m_actions[i]->setIcon(ToolIcon(*icon, colors));
        }
    }
    m_toolBar->setIconSize(QSize(kIconSide, kIconSide));
    m_surface->FollowDesktop(colors);
    m_status->FollowAppearance();
    if (m_guide != nullptr) {
        m_guide->SetAppearance(colors.Palette(), font());
    }
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
        if (m_guide != nullptr) {
            m_guide->hide();
        }
        m_surface->Search().StopSearch();
    }
    QMainWindow::hideEvent(event);
}

// The tool bar shows words where they fit.
void Workbench::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    constexpr int kWordsFit = 1000;
    m_toolBar->setToolButtonStyle(width() >= kWordsFit ? Qt::ToolButtonTextBesideIcon
                                                       : Qt::ToolButtonIconOnly);
}

void Workbench::OpenWindow(const Configuration& configuration) {
    if (!m_wasOpen) {
        m_wasOpen = true;
        RestorePlace(*this, configuration, kInitialLines * fontMetrics().height());
        m_surface->List().SetHiddenColumns(
            ParseHiddenColumns(configuration.Read(Configuration::kWorkbenchHidden)));
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

Configuration::Values Workbench::Settings() const {
    if (!m_wasOpen) {
        return {};
    }
    Configuration::Values values = PlaceOf(*this);
    values.emplace_back(Configuration::kWorkbenchHidden,
                        HiddenColumnsText(m_surface->List().HiddenColumns()));
    return values;
}

void Workbench::ShowPlan() {
    if (!isVisible()) {
        return;
    }
    const auto choice = m_editor.TakeChoice();
    m_surface->ShowPlan(choice ? choice->rows : m_surface->List().ChosenRows(),
                        choice ? choice->insertBefore : std::nullopt);
    m_status->ShowFigures(m_document);
    m_marks.refused.reset();
    ShowRequest();
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
            case Needs::NoSearch:
                return !m_surface->Search().IsRunning();
            case Needs::Search:
                return m_surface->Search().IsRunning();
            case Needs::Find:
                return m_surface->Search().HasFind();
            case Needs::Run:
                break;
        }
        return m_document.Trace().has_value();
    };
    for (std::size_t i = 0; i < m_actions.size(); ++i) {
        m_actions[i]->setEnabled(fulfilled(ActionRows()[i].needs));
    }
    m_surface->Palette().ShowOffers(m_editor.Offers(), m_surface->List().InsertPosition(),
                                    m_document.CurrentPlan().LV_Bauliste.Orders().Size());
}

int Workbench::DaysMoved() const {
    const auto start = ReadUniStartZeit(m_document.CurrentPlan().parameters);
    if (!start || !m_startOfNights || m_document.CurrentPlan().LV_Schlafzeiten.empty()) {
        return 0;
    }
    constexpr Long kDay = 86400;
    return (StartOfDay(*start) - StartOfDay(*m_startOfNights)) / kDay;
}

// The nights that a plan lacks, and those that it would take along.
void Workbench::ShowRequest() {
    const Plan& plan = m_document.CurrentPlan();
    const auto& trace = m_document.Trace();
    std::optional<WorkbenchStatusBar::Request> request;
    m_marks.sleepless.clear();
    const auto from = trace ? SleeplessFrom(plan.LV_Schlafzeiten, trace->conditions.StartDate,
                                            trace->conditions.WallClock(trace->Duration()))
                            : std::nullopt;
    if (from) {
        m_marks.sleepless = RowsInNewNights(
            *trace, ProposeNights(plan, m_surface->Sleep().Rule(), AtOverlap::KeepRows).filled);
        const auto count = static_cast<int>(m_marks.sleepless.size());
        request = {.title = QStringLiteral("Ab %1 ohne Schlaf:")
                                .arg(ToQString(ShortDateTimeText(*from)).chopped(3)),
                   .text = count == 1 ? QStringLiteral("1 Auftrag beginnt nachts.")
                                      : QStringLiteral("%1 Aufträge beginnen nachts.").arg(count),
                   .button = QStringLiteral("Nächte auffüllen")};
    }
    if (const int days = DaysMoved(); days != 0) {
        request = {
            .title = QStringLiteral("Der Start liegt %1 %2 %3.")
                         .arg(std::abs(days))
                         .arg(std::abs(days) == 1 ? QStringLiteral("Tag") : QStringLiteral("Tage"),
                              days > 0 ? QStringLiteral("später") : QStringLiteral("früher")),
            .text = QStringLiteral("Sollen die Schlafzeiten mitkommen?"),
            .button = QStringLiteral("Nächte verschieben")};
    }
    m_status->ShowRequest(request);
    m_surface->List().SetMarks(m_marks);
}

void Workbench::AcceptRequest() {
    const Plan& plan = m_document.CurrentPlan();
    if (const int days = DaysMoved(); days != 0) {
        m_document.SetSleepTable(MovedByDays(plan.LV_Schlafzeiten, days));
    } else {
        m_document.SetSleepTable(
            ProposeNights(plan, m_surface->Sleep().Rule(), AtOverlap::KeepRows).filled.table);
    }
}

void Workbench::ShowRefusal(const QString& what, const EditObjection& objection) {
    m_status->ShowRefusal(what, objection.text);
    m_marks.refused = objection.row;
    m_surface->List().SetMarks(m_marks);
}

void Workbench::Tick() {
    const DateTime now = m_environment.now();
    m_surface->ShowNow(now);
    const auto& trace = m_document.Trace();
    const StartEvent* const next = trace ? NextStart(*trace, now) : nullptr;
    m_marks.next = next == nullptr ? std::nullopt : std::optional(next->row);
    m_surface->List().SetMarks(m_marks);
}

void Workbench::InsertRow(const Order& order) {
    m_editor.InsertRow(order, m_surface->List().InsertPosition());
}

void Workbench::InsertPicture(const QString& picture, std::size_t before) {
    if (const auto item = ItemFromPicture(picture.toStdString())) {
        m_editor.InsertRow(Order::Of(*item), before);
    }
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

void Workbench::OpenGuide() {
    if (m_guide == nullptr) {
        m_guide = new HelpWindow(this);
        m_guide->SetAppearance(palette(), font());
    }
    const QWidget* const focused = focusWidget();
    m_guide->OpenAt(HelpTopicFor(focused != nullptr ? focused : m_surface->CurrentPage()));
}

void Workbench::StartSearch() {
    m_surface->ShowPage(WorkbenchSurface::kSearchPage);
    m_surface->Search().StartSearch();
}

void Workbench::SavePicture() {
    m_status->ShowMessage(tarvelin::SavePicture(m_surface->Timeline(), m_environment));
}

void Workbench::CopyTimetable() {
    m_status->ShowMessage(tarvelin::CopyTimetable(*m_document.Trace()));
}

void Workbench::SaveCalendar() {
    m_status->ShowMessage(
        tarvelin::SaveCalendar(*m_document.Trace(), ParseLeadTime(m_leadTime()), m_environment));
}

}  // namespace tarvelin
