// Life of the workbench: how it follows the document, the clock and the desktop.
#include "ui/workbench/Workbench.h"

#include <QHideEvent>
#include <QMenuBar>
#include <algorithm>
#include <utility>

#include "simulation/StatusTexts.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/widgets/Pictures.h"
#include "ui/workbench/FocusFrame.h"
#include "ui/workbench/PlainStyle.h"
#include "ui/workbench/WindowPlace.h"

namespace tarvelin {

namespace {

/// Initial size of the window, in line heights.
constexpr QSize kInitialLines(96, 56);

}  // namespace

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
    RememberNights();
    m_surface->Sleep().TakeRuleFromPlan();
    FollowDesktop();
    ShowTitle();
}

void Workbench::ConnectSignals() {
    m_document.Observe([this](const DocumentChange& change) {
        if (change.rows == DocumentChange::Rows::Replaced) {
            m_startsOfNights.clear();
        }
        RememberNights();
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
    ShowIcons(colors);
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

void Workbench::RememberNights() {
    const Plan& plan = m_document.CurrentPlan();
    const auto start = ReadUniStartZeit(plan.parameters);
    if (start && !plan.LV_Schlafzeiten.empty() &&
        std::ranges::count(m_startsOfNights, plan.LV_Schlafzeiten,
                           &std::pair<SleepTable, DateTime>::first) == 0) {
        m_startsOfNights.emplace_back(plan.LV_Schlafzeiten, *start);
    }
}

int Workbench::DaysMoved() const {
    const Plan& plan = m_document.CurrentPlan();
    const auto start = ReadUniStartZeit(plan.parameters);
    const auto entered = std::ranges::find(m_startsOfNights, plan.LV_Schlafzeiten,
                                           &std::pair<SleepTable, DateTime>::first);
    if (!start || entered == m_startsOfNights.end()) {
        return 0;
    }
    constexpr Long kDay = 86400;
    return (StartOfDay(*start) - StartOfDay(entered->second)) / kDay;
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
    m_surface->ShowMarks(m_marks);
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
    m_surface->ShowMarks(m_marks);
}

void Workbench::Tick() {
    const DateTime now = m_environment.now();
    m_surface->ShowNow(now);
    const auto& trace = m_document.Trace();
    const StartEvent* const next = trace ? NextStart(*trace, now) : nullptr;
    m_marks.next = next == nullptr ? std::nullopt : std::optional(next->row);
    m_surface->ShowMarks(m_marks);
}

void Workbench::InsertRow(const Order& order) {
    m_editor.InsertRow(order, m_surface->List().InsertPosition());
}

void Workbench::InsertPicture(const QString& picture, std::size_t before) {
    if (const auto item = ItemFromPicture(picture.toStdString())) {
        m_editor.InsertRow(Order::Of(*item), before);
    }
}

}  // namespace tarvelin
