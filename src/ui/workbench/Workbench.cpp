// Life of the workbench: its commands, and how it follows the document, the clock and the desktop.
#include "ui/workbench/Workbench.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHideEvent>
#include <QMimeData>
#include <QShortcut>
#include <QVBoxLayout>
#include <chrono>
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

/// When a command can be carried out.
enum class Needs { ChosenRow, Run, UndoStep, RedoStep };

}  // namespace

struct Workbench::Command {
    const char* name;
    const char* caption;
    /// May be empty.
    QKeySequence key;
    Needs needs;
    void (Workbench::*operation)();
};

const std::vector<Workbench::Command>& Workbench::Commands() {
    // clang-format off
    static const std::vector<Command> commands{
        {"Cmd_Zurueck",           "&Rückgängig",           Qt::CTRL | Qt::Key_Z,             Needs::UndoStep,  &Workbench::Undo},
        {"Cmd_Vor",               "&Wiederholen",          Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Needs::RedoStep,  &Workbench::Redo},
        {"Cmd_Hoch",              "&Hoch",                 Qt::ALT | Qt::Key_Up,             Needs::ChosenRow, &Workbench::MoveUp},
        {"Cmd_Runter",            "R&unter",               Qt::ALT | Qt::Key_Down,           Needs::ChosenRow, &Workbench::MoveDown},
        {"Cmd_Verdopple",         "&Verdoppeln",           Qt::CTRL | Qt::Key_D,             Needs::ChosenRow, &Workbench::DuplicateChosen},
        {"Cmd_Loesche",           "&Löschen",              Qt::Key_Delete,                   Needs::ChosenRow, &Workbench::RemoveChosen},
        {"Cmd_Kopieren",          "&Kopieren",             {},                               Needs::Run,       &Workbench::CopyTimetable},
        {"Cmd_KalenderSpeichern", "K&alender speichern...", {},                              Needs::Run,       &Workbench::SaveCalendar},
        {"Cmd_BildSpeichern",     "&Bild speichern...",    {},                               Needs::Run,       &Workbench::SavePicture}};
    // clang-format on
    return commands;
}

Workbench::Workbench(Document& document, std::function<std::string()> leadTime,
                     const Environment& environment)
    : m_document(document),
      m_leadTime(std::move(leadTime)),
      m_environment(environment),
      m_surface(new WorkbenchSurface(document, environment, this)) {
    setObjectName(QStringLiteral("frmWerkbank"));
    setWindowTitle(QStringLiteral("Tarvelin  |  Werkbank"));
    setWindowIcon(LoadIconFile(environment.programFolder / "img" / "icon.ico"));
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_surface);
    AddCommands();
    ConnectSignals();
    FollowDesktop();
}

void Workbench::AddCommands() {
    for (const Command& command : Commands()) {
        QPushButton* const button = m_surface->AddButton(QString::fromLatin1(command.name),
                                                         QString::fromUtf8(command.caption));
        connect(button, &QPushButton::clicked, this, command.operation);
        if (!command.key.isEmpty()) {
            button->setToolTip(command.key.toString(QKeySequence::NativeText));
            connect(new QShortcut(command.key, this), &QShortcut::activated, this,
                    command.operation);
        }
        m_buttons.push_back(button);
    }
}

void Workbench::ConnectSignals() {
    m_document.Observe([this](const DocumentChange& change) {
        if (change.plan) {
            ShowPlan();
        }
    });
    connect(&m_surface->List(), &OrderListView::ChoiceChanged, this, &Workbench::EnableCommands);
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
    return QWidget::event(event);
}

void Workbench::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
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
    QWidget::hideEvent(event);
}

void Workbench::Open(const Configuration& configuration) {
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
    m_nextChosen.reset();
    EnableCommands();
    Tick();
}

void Workbench::EnableCommands() {
    const auto fulfilled = [this](Needs needs) {
        switch (needs) {
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
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i]->setEnabled(fulfilled(Commands()[i].needs));
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
        m_surface->ShowNotice(*objection);
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
        m_surface->ShowNotice(std::string("Der Name des Bildes endet auf .png, ") +
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
    m_surface->ShowNotice("Der Zeitplan liegt in der Zwischenablage.");
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
    m_surface->ShowNotice(
        WriteFileAtomically(file, bytes, m_environment.files)
            ? "Gespeichert: " + PathToQString(file).toStdString()
            : "Die Datei konnte nicht gespeichert werden: wähle einen Ordner, in dem du schreiben "
              "kannst.");
}

}  // namespace tarvelin
