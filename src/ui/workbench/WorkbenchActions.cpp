// The table of the workbench's actions, its menus and bars, and what the actions do.
#include <QMenuBar>
#include <algorithm>
#include <utility>

#include "simulation/DueAlarms.h"
#include "ui/look/Icons.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/HelpTopics.h"
#include "ui/workbench/PlanExports.h"
#include "ui/workbench/Workbench.h"

namespace tarvelin {

namespace {

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
        {"Cmd_BildSpeichern",     Menu::File,   "Als &Bild ...",        Icon::Picture,   {},                               Needs::Run,       kToolBar,  &Workbench::SavePoster},
        {"Cmd_AusschnittSpeichern", Menu::File, "&Ausschnitt als Bild ...", {},          {},                               Needs::Run,       kMenuOnly, &Workbench::SaveSection},
        {"Cmd_Kopieren",          Menu::File,   "&Zeitplan kopieren",   {},              Qt::CTRL | Qt::SHIFT | Qt::Key_C, Needs::Run,       kMenuOnly, &Workbench::CopyTimetable},
        {"Cmd_Schliessen",        Menu::File,   "&Werkbank schließen",  {},              Qt::CTRL | Qt::Key_W,             Needs::Nothing,   kMenuOnly, &Workbench::CloseWindow, true},
        {"Cmd_GanzerPlan",        Menu::View,   "&Ganzer Plan",         Icon::WholePlan, Qt::CTRL | Qt::Key_0,             Needs::Run,       kMenuOnly, &Workbench::ShowWholePlan},
        {"Cmd_SucheBeginnen",     Menu::Search, "&Suchen",              Icon::Search,    Qt::CTRL | Qt::Key_F,             Needs::NoSearch,  kMenuOnly, &Workbench::StartSearch},
        {"Cmd_SucheAnhalten",     Menu::Search, "&Anhalten",            {},              {},                               Needs::Search,    kMenuOnly, &Workbench::StopSearch},
        {"Cmd_FundVergleichen",   Menu::Search, "&Mit Fund vergleichen", {},             {},                               Needs::Find,      kMenuOnly, &Workbench::CompareFind, true},
        {"Cmd_FundUebernehmen",   Menu::Search, "Fund ü&bernehmen",     {},              {},                               Needs::Find,      kMenuOnly, &Workbench::AcceptFind},
        {"Cmd_Anleitung",         Menu::Help,   "&Anleitung",           Icon::Help,      Qt::Key_F1,                       Needs::Nothing,   kAtEnd,    &Workbench::OpenGuide}};
    // clang-format on
    return rows;
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
                action->setIconText(QStringLiteral("Hilfe"));
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

void Workbench::ShowIcons(const WorkbenchColors& colors) {
    for (std::size_t i = 0; i < m_actions.size(); ++i) {
        if (const auto icon = ActionRows()[i].icon) {
            m_actions[i]->setIcon(ToolIcon(*icon, colors));
        }
    }
    m_toolBar->setIconSize(QSize(kIconSide, kIconSide));
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

void Workbench::SavePoster() {
    const auto& file = m_document.File();
    const PlanPoster::Parts parts{.planName = file ? PathToQString(file->stem()) : QString(),
                                  .icon = windowIcon().pixmap(QSize(256, 256)),
                                  .pictures = m_surface->Timeline().Pictures(),
                                  .font = font()};
    m_status->ShowMessage(tarvelin::SavePoster(*m_document.Trace(), parts, m_environment));
}

void Workbench::SaveSection() {
    m_status->ShowMessage(tarvelin::SaveSection(m_surface->Timeline(), m_environment));
}

void Workbench::CopyTimetable() {
    m_status->ShowMessage(tarvelin::CopyTimetable(*m_document.Trace()));
}

void Workbench::SaveCalendar() {
    m_status->ShowMessage(
        tarvelin::SaveCalendar(*m_document.Trace(), ParseLeadTime(m_leadTime()), m_environment));
}

}  // namespace tarvelin
