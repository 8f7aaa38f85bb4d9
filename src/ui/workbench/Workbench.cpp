// Layout and handlers of the workbench.
#include "ui/workbench/Workbench.h"

#include <QAccessible>
#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <utility>

#include "model/ItemTable.h"
#include "persistence/AtomicWrite.h"
#include "persistence/Calendar.h"
#include "simulation/DueAlarms.h"
#include "simulation/ResultTexts.h"
#include "simulation/RunTexts.h"
#include "ui/services/SvgImage.h"
#include "ui/widgets/Appearance.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"
#include "ui/widgets/Pictures.h"
#include "ui/workbench/StatusTexts.h"
#include "ui/workbench/TimelinePicture.h"
#include "ui/workbench/Timetable.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

/// Columns of the list.
enum Column { kNumber, kOrder, kStart, kFinish, kDelay, kFactor };

/// Initial size of the window, in line heights.
constexpr QSize kInitialLines(96, 54);

/// Sets every color explicitly, so that none comes from the program's palette.
QPalette AsOwn(const QPalette& colors) {
    QPalette own;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            if (role != QPalette::NoRole) {
                const auto name = static_cast<QPalette::ColorRole>(role);
                own.setBrush(group, name, colors.brush(group, name));
            }
        }
    }
    return own;
}

QLabel* NewTextLabel(const char* name, const char* accessibleName, QWidget* parent) {
    QLabel* const label = NewLabel(QString::fromLatin1(name), {}, parent);
    label->setAccessibleDescription(QString::fromUtf8(accessibleName));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}  // namespace

Workbench::Workbench(const Plan& plan, const EditHistory& history,
                     std::function<std::string()> leadTime, const Environment& environment)
    : m_plan(plan),
      m_history(history),
      m_leadTime(std::move(leadTime)),
      m_environment(environment),
      m_messageLabel(NewTextLabel("LBL_Meldung", "Meldung", this)),
      m_list(new OrderListView(ListProvider(), this)),
      m_pages(new QTabWidget(this)),
      m_palette(new ItemPalette(this)),
      m_searchPage(new SearchPage(
          plan, environment, [this] { return m_list->ChosenRows(); }, this)),
      m_comparisonPage(new ComparisonPage(environment, this)),
      m_timeline(new TimelineView(this)),
      m_statusLabel(NewTextLabel("LBL_Stand", "Stand am Zeiger", this)),
      m_durationLabel(NewTextLabel("LBL_Dauer", "Dauer des Plans", this)),
      m_changeLabel(NewTextLabel("LBL_Aenderung", "Änderung der Dauer", this)),
      m_nextOrderLabel(NewTextLabel("LBL_Naechster", "Nächster Auftrag", this)) {
    setObjectName(QStringLiteral("frmWerkbank"));
    setWindowTitle(QStringLiteral("Tarvelin  |  Werkbank"));
    setWindowIcon(LoadIconFile(environment.programFolder / "img" / "icon.ico"));
    setAttribute(Qt::WA_QuitOnClose, false);
    Arrange();
    ConnectSignals();
    FollowDesktop();
}

// The list reads members, which are destroyed before child widgets.
Workbench::~Workbench() {
    delete m_list;
}

QPushButton* Workbench::NewCommandButton(const char* name, const char* text,
                                         const QKeySequence& key, void (Workbench::*handler)()) {
    auto* const button = new QPushButton(QString::fromUtf8(text), this);
    button->setObjectName(QString::fromLatin1(name));
    connect(button, &QPushButton::clicked, this, handler);
    if (!key.isEmpty()) {
        button->setToolTip(key.toString(QKeySequence::NativeText));
        connect(new QShortcut(key, this), &QShortcut::activated, this, handler);
    }
    m_commands.push_back(button);
    return button;
}

void Workbench::AddPages() {
    for (QWidget* const page :
         {static_cast<QWidget*>(m_palette), static_cast<QWidget*>(m_searchPage)}) {
        // A small screen has no room for the whole page.
        auto* const scrollArea = new QScrollArea(this);
        scrollArea->setWidget(page);
        scrollArea->setWidgetResizable(true);
        scrollArea->setFrameShape(QFrame::NoFrame);
        scrollArea->setFocusPolicy(Qt::NoFocus);
        m_pages->addTab(scrollArea,
                        page == m_palette ? QStringLiteral("&Einfügen") : QStringLiteral("Su&che"));
    }
    m_pages->addTab(m_comparisonPage, QStringLiteral("Ver&gleich"));
}

void Workbench::Arrange() {
    auto* const commands = new QHBoxLayout;
    m_undoButton = NewCommandButton("Cmd_Zurueck", "&Rückgängig",
                                    QKeySequence(Qt::CTRL | Qt::Key_Z), &Workbench::UndoRequested);
    m_redoButton =
        NewCommandButton("Cmd_Vor", "&Wiederholen", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z),
                         &Workbench::RedoRequested);
    NewCommandButton("Cmd_Hoch", "&Hoch", QKeySequence(Qt::ALT | Qt::Key_Up), &Workbench::MoveUp);
    NewCommandButton("Cmd_Runter", "R&unter", QKeySequence(Qt::ALT | Qt::Key_Down),
                     &Workbench::MoveDown);
    NewCommandButton("Cmd_Verdopple", "&Verdoppeln", QKeySequence(Qt::CTRL | Qt::Key_D),
                     &Workbench::DuplicateChosen);
    NewCommandButton("Cmd_Loesche", "&Löschen", QKeySequence(Qt::Key_Delete),
                     &Workbench::RemoveChosen);
    NewCommandButton("Cmd_Kopieren", "&Kopieren", {}, &Workbench::CopyTimetable);
    NewCommandButton("Cmd_KalenderSpeichern", "K&alender speichern...", {},
                     &Workbench::SaveCalendar);
    NewCommandButton("Cmd_BildSpeichern", "&Bild speichern...", {}, &Workbench::SavePicture);
    for (QPushButton* const button : m_commands) {
        commands->addWidget(button);
    }
    commands->addStretch(1);

    m_messageLabel->setWordWrap(true);
    m_messageLabel->setFrameStyle(QFrame::StyledPanel);
    m_messageLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_statusLabel->setWordWrap(true);
    m_pages->setObjectName(QStringLiteral("Felder"));

    auto* const top = new QSplitter(Qt::Horizontal, this);
    top->setChildrenCollapsible(false);
    top->addWidget(m_list);
    AddPages();
    top->addWidget(m_pages);
    top->setStretchFactor(0, 1);
    auto* const splitter = new QSplitter(Qt::Vertical, this);
    splitter->addWidget(top);
    splitter->addWidget(m_timeline);
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(0, 3);
    splitter->setStretchFactor(1, 2);

    auto* const footer = new QHBoxLayout;
    footer->addWidget(m_durationLabel);
    footer->addWidget(m_changeLabel);
    footer->addStretch(1);
    footer->addWidget(m_nextOrderLabel);

    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(commands);
    layout->addWidget(m_messageLabel);
    layout->addWidget(splitter, 1);
    layout->addWidget(m_statusLabel);
    layout->addLayout(footer);
}

template <class Step>
void Workbench::EditChosen(Step step) {
    ListEdit edit(m_plan.LV_Bauliste);
    step(edit, m_list->ChosenRows());
    ApplyEdit(edit, edit.Affected());
}

void Workbench::ConnectSignals() {
    connect(m_list, &OrderListView::ChoiceChanged, this, &Workbench::ShowChoice);
    connect(m_list, &OrderListView::RowsDropped, this, [this](std::size_t before) {
        EditChosen([before](ListEdit& edit, const auto& rows) { edit.MoveBefore(before, rows); });
    });
    connect(m_list, &OrderListView::PictureDropped, this,
            [this](const QString& picture, std::size_t before) {
                if (const auto item = ItemFromPicture(picture.toStdString())) {
                    InsertRow(RowOf(*item).ItemCode, before);
                }
            });
    connect(m_palette, &ItemPalette::ItemChosen, this,
            [this](ItemId item) { InsertRow(RowOf(item).ItemCode, InsertPosition()); });
    connect(m_palette, &ItemPalette::ProductionChosen, this, [this](const MineFactors& factors) {
        InsertRow(Order::Of(factors).Tag(), InsertPosition());
    });
    connect(m_timeline, &TimelineView::CursorMoved, this, &Workbench::ShowStatusAt);
    connect(m_timeline, &TimelineView::RowChosen, this,
            [this](std::size_t row) { m_list->Choose({row}); });
    connect(m_searchPage, &SearchPage::Notice, this, &Workbench::ShowNotice);
    connect(m_searchPage, &SearchPage::ResultAccepted, this, &Workbench::ListEdited);
    connect(m_comparisonPage, &ComparisonPage::Notice, this, &Workbench::ShowNotice);
    connect(m_comparisonPage, &ComparisonPage::OtherRunChanged, this,
            [this] { m_timeline->SetOtherRun(m_comparisonPage->OtherRun()); });
    connect(&m_timer, &QTimer::timeout, this, &Workbench::Tick);
}

// A fixed height, so that nothing moves when a message comes or goes.
void Workbench::SetMessageHeight() {
    constexpr int kLineCount = 2;
    m_messageLabel->setFixedHeight(kLineCount * m_messageLabel->fontMetrics().lineSpacing() +
                                   2 * m_messageLabel->frameWidth() + 2);
}

void Workbench::FollowDesktop() {
    const QPalette colors = m_environment.desktopPalette();
    setPalette(AsOwn(colors));
    setFont(DesktopFont());
    SetMessageHeight();
    m_timeline->SetAppearance(colors, font());
    // Wide enough never to scroll sideways.
    for (auto* const scrollArea : m_pages->findChildren<QScrollArea*>()) {
        scrollArea->setMinimumWidth(scrollArea->widget()->minimumSizeHint().width() +
                                    style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    }
}

bool Workbench::event(QEvent* event) {
    if (event->type() == QEvent::ThemeChange) {
        FollowDesktop();
    }
    return QWidget::event(event);
}

void Workbench::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    RefreshPlan();
    m_timer.SetRunning(true);
    Tick();
}

void Workbench::hideEvent(QHideEvent* event) {
    // Not when the window is minimized.
    if (!event->spontaneous()) {
        m_timer.SetRunning(false);
        m_searchPage->StopSearch();
    }
    QWidget::hideEvent(event);
}

void Workbench::Open(const Configuration& configuration) {
    if (!m_wasOpen) {
        m_wasOpen = true;
        const auto read = [&](const ConfigKey& key) {
            constexpr int kFarthest = 100'000;
            const auto number = ParseWholeNumber(configuration.Read(key), -kFarthest, kFarthest);
            return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
        };
        constexpr QSize kFrame(8, 36);
        const QSize room = QGuiApplication::primaryScreen()->availableSize() - kFrame;
        const QSize firstSize = kInitialLines * fontMetrics().height();
        resize(QSize(read(Configuration::kWorkbenchWidth).value_or(firstSize.width()),
                     read(Configuration::kWorkbenchHeight).value_or(firstSize.height()))
                   .boundedTo(room)
                   .expandedTo(QSize(1, 1)));
        const auto left = read(Configuration::kWorkbenchLeft);
        const auto top = read(Configuration::kWorkbenchTop);
        // The screen may be gone.
        if (left && top && QGuiApplication::screenAt({*left, *top}) != nullptr) {
            move(*left, *top);
        }
        if (configuration.IsOn(Configuration::kWorkbenchMaximized)) {
            setWindowState(Qt::WindowMaximized);
        }
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

Configuration::Values Workbench::GeometryValues() const {
    if (!m_wasOpen) {
        return {};
    }
    const QSize windowSize = isMaximized() ? normalGeometry().size() : size();
    return {{Configuration::kWorkbenchLeft, std::to_string(pos().x())},
            {Configuration::kWorkbenchTop, std::to_string(pos().y())},
            {Configuration::kWorkbenchWidth, std::to_string(windowSize.width())},
            {Configuration::kWorkbenchHeight, std::to_string(windowSize.height())},
            {Configuration::kWorkbenchMaximized, isMaximized() ? "1" : "0"}};
}

void Workbench::SetPictures(const PerItem<QPixmap>& pictures) {
    m_palette->SetPictures(pictures);
    m_timeline->SetPictures(pictures);
}

void Workbench::RefreshPlan() {
    if (!isVisible()) {
        return;
    }
    PlayPlan();
    m_list->Refresh(m_nextChosen.value_or(m_list->ChosenRows()));
    m_nextChosen.reset();
    m_timeline->SetRun(m_trace);
    m_comparisonPage->SetOwnRun(m_trace);
    ShowChoice();
    ShowFooter();
    ShowStatusAt(std::nullopt);
    Tick();
}

void Workbench::PlayPlan() {
    if (m_steps != m_history.StepCount()) {
        m_steps = m_history.StepCount();
        m_durationBefore = m_trace ? std::optional(m_trace->Duration().Seconds()) : std::nullopt;
    }
    const auto conditions = ParseRunConditions(m_plan);
    if (const auto* const refusal = std::get_if<Message>(&conditions)) {
        m_trace.reset();
        ShowNotice(m_plan.LV_Bauliste.Orders().IsEmpty() ? "" : refusal->text);
    } else {
        m_trace = TraceRun(m_plan.LV_Bauliste.Orders().All(), std::get<RunConditions>(conditions));
        ShowNotice(MessagesText(*m_trace));
    }
    const bool edited = m_history.CanUndo() || m_history.CanRedo();
    m_durationChange = edited && m_durationBefore && m_trace
                           ? std::optional(m_trace->Duration().Seconds() - *m_durationBefore)
                           : std::nullopt;
}

void Workbench::ShowFooter() {
    m_durationLabel->setText(m_trace
                                 ? QStringLiteral("Dauer: ") + ToQString(DurationText(m_trace->end))
                                 : QStringLiteral("Dauer: -"));
    m_changeLabel->setText(m_durationChange ? ToQString(SignedTimeSpanText(*m_durationChange))
                                            : QString());
    m_undoButton->setEnabled(m_history.CanUndo());
    m_redoButton->setEnabled(m_history.CanRedo());
}

void Workbench::ShowChoice() {
    const auto chosen = m_list->ChosenRows();
    m_timeline->SetChosenRows({chosen.begin(), chosen.end()});
    if (!chosen.empty()) {
        m_timeline->BringIntoView(chosen.front());
    }
    for (const char* const name : {"Cmd_Hoch", "Cmd_Runter", "Cmd_Verdopple", "Cmd_Loesche"}) {
        findChild<QPushButton*>(QString::fromLatin1(name))->setEnabled(!chosen.empty());
    }
    for (const char* const name : {"Cmd_Kopieren", "Cmd_KalenderSpeichern", "Cmd_BildSpeichern"}) {
        findChild<QPushButton*>(QString::fromLatin1(name))->setEnabled(m_trace.has_value());
    }
    ShowObjections();
}

void Workbench::ShowObjections() {
    m_palette->SetObjections([&](ItemId item) {
        ListEdit edit(m_plan.LV_Bauliste);
        edit.Insert(InsertPosition(), RowOf(item).ItemCode);
        return edit.Objection();
    });
}

void Workbench::ShowStatusAt(std::optional<SimTime> moment) {
    m_statusLabel->setText(m_trace && moment ? ToQString(StatusText(*m_trace, *moment))
                                             : QStringLiteral("\n"));
    m_timeline->setAccessibleDescription(m_statusLabel->text());
}

void Workbench::Tick() {
    const DateTime now = m_environment.now();
    m_timeline->SetNow(now);
    const auto next = m_trace ? NextOrderText(*m_trace, now) : std::nullopt;
    m_nextOrderLabel->setText(next ? QStringLiteral("Als Nächstes: ") + ToQString(*next)
                                   : QString());
}

void Workbench::ShowNotice(const std::string& text) {
    m_messageLabel->setText(ToQString(text).trimmed());
    // The label shows only two lines.
    m_messageLabel->setToolTip(m_messageLabel->text());
    if (!text.empty()) {
        // Screen readers read it at once, wherever the focus is.
        QAccessibleEvent alert(m_messageLabel, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void Workbench::ApplyEdit(const ListEdit& edit, std::vector<std::size_t> chosen) {
    const auto tags = edit.Tags();
    if (tags == m_plan.LV_Bauliste.Tags()) {
        return;
    }
    if (const auto objection = edit.Objection()) {
        ShowNotice(*objection);
        return;
    }
    m_nextChosen = std::move(chosen);
    emit ListEdited(tags, {});
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
void Workbench::InsertRow(std::string_view tag, std::size_t before) {
    ListEdit edit(m_plan.LV_Bauliste);
    edit.Insert(before, tag);
    auto chosen = m_list->ChosenRows();
    for (std::size_t& row : chosen) {
        row += row >= before ? 1 : 0;
    }
    ApplyEdit(edit, std::move(chosen));
}

std::size_t Workbench::InsertPosition() const {
    const auto chosen = m_list->ChosenRows();
    return chosen.empty() ? m_plan.LV_Bauliste.Rows().size() : chosen.front();
}

void Workbench::SavePicture() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Picture);
    if (file.empty()) {
        return;
    }
    const auto picture = RenderTimeline(*m_timeline, QFileInfo(PathToQString(file)).suffix());
    if (!picture) {
        ShowNotice(std::string("Der Name des Bildes endet auf .png, ") + (HasSvg() ? ".svg " : "") +
                   "oder .pdf: es wurde nichts gespeichert.");
        return;
    }
    SaveBytes(file, picture->toStdString());
}

void Workbench::CopyTimetable() {
    auto* const content = new QMimeData;
    content->setText(ToQString(TimetableTsv(*m_trace)));
    content->setHtml(ToQString(TimetableHtml(*m_trace)));
    // The clipboard owns it.
    QGuiApplication::clipboard()->setMimeData(content);
    ShowNotice("Der Zeitplan liegt in der Zwischenablage.");
}

void Workbench::SaveCalendar() {
    const auto file = m_environment.AskForFile(Dialogs::Purpose::Calendar);
    if (!file.empty()) {
        const auto createdAt =
            std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now());
        SaveBytes(file, CalendarText(*m_trace, ParseLeadTime(m_leadTime()), createdAt));
    }
}

void Workbench::SaveBytes(const std::filesystem::path& file, const std::string& bytes) {
    if (WriteFileAtomically(file, bytes, m_environment.files)) {
        ShowNotice("Gespeichert: " + PathToQString(file).toStdString());
    } else {
        ShowNotice(
            "Die Datei konnte nicht gespeichert werden: wähle einen Ordner, in dem du schreiben "
            "kannst.");
    }
}

TableModel::Provider Workbench::ListProvider() const {
    return {
        .rows = [this] { return m_plan.LV_Bauliste.Rows().size(); },
        .text = [this](std::size_t row, int column) { return ToQString(CellText(row, column)); },
        .color =
            [this](std::size_t row, int column) {
                const bool red = column == kFactor &&
                                 m_plan.LV_Bauliste.Rows()[row].SubItems2Color == TextColor::Red;
                return red ? m_timeline->DeficitColor() : palette().color(QPalette::Text);
            },
        .description =
            [this](std::size_t row) {
                // Narrow columns elide their texts.
                std::string text = CellText(row, kOrder);
                for (const int column : {kStart, kFinish, kDelay}) {
                    text += "\n" + CellText(row, column);
                }
                return ToQString(text).trimmed();
            }};
}

std::string Workbench::CellText(std::size_t row, int column) const {
    const BuildListRow& texts = m_plan.LV_Bauliste.Rows()[row];
    const StartEvent* const start = m_trace ? m_trace->StartOf(row) : nullptr;
    switch (column) {
        case kNumber:
            return texts.text;
        case kOrder:
            return texts.SubItems1;
        case kStart:
            return start != nullptr ? ShortDateTimeText(m_trace->conditions.WallClock(start->start))
                                    : "";
        case kFinish:
            return start != nullptr
                       ? ShortDateTimeText(m_trace->conditions.WallClock(start->finish))
                       : "";
        case kDelay:
            return m_trace ? DelayText(*m_trace, row) : "";
        default:
            return texts.SubItems2;
    }
}

}  // namespace tarvelin
