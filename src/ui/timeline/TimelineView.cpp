// Zoom, cursor and keys of the timeline.
#include "ui/timeline/TimelineView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/look/Icons.h"
#include "ui/timeline/CursorCard.h"
#include "ui/timeline/SlimScrollBar.h"
#include "ui/timeline/TimelineLegend.h"
#include "ui/timeline/TimelinePainter.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// Pixels per second at the strongest zoom.
constexpr double kMaxScale = 20;
/// Keeps the whole width within the range of a scroll bar.
constexpr double kMaxWidth = 1e9;
constexpr double kZoomStep = 1.25;
/// For the chip of the end.
constexpr double kBehindEnd = 40;
constexpr int kPictureSide = 24;
constexpr int kButton = 24;

QString SpanInSight(double seconds) {
    constexpr double kMinute = 60;
    constexpr double kHour = 60 * kMinute;
    constexpr double kDay = 24 * kHour;
    const auto text = [&](double unit, const char* one, const char* many) {
        const auto count = std::max(1L, std::lround(seconds / unit));
        return QStringLiteral("%1 %2 im Bild")
            .arg(count)
            .arg(QString::fromUtf8(count == 1 ? one : many));
    };
    return seconds >= 2 * kDay    ? text(kDay, "Tag", "Tage")
           : seconds >= 2 * kHour ? text(kHour, "Stunde", "Stunden")
                                  : text(kMinute, "Minute", "Minuten");
}

}  // namespace

/// Keeps the visible part, unless all was visible.
template <class Action>
void TimelineView::ChangeKeepingView(Action action) {
    const bool everything = ShowsAll();
    action();
    if (everything) {
        ShowAll();
    } else {
        Show(m_first, m_perSecond);
    }
}

TimelineView::TimelineView(QWidget* parent)
    : QWidget(parent),
      m_scrollBar(new SlimScrollBar(this)),
      m_minus(NewButton("Cmd_Verkleinern", QStringLiteral("Verkleinern (−)"))),
      m_plus(NewButton("Cmd_Vergroessern", QStringLiteral("Vergrößern (+)"))),
      m_whole(NewButton("Cmd_AllesZeigen", QStringLiteral("Ganzer Plan (0)"))) {
    setObjectName(QStringLiteral("Zeitleiste"));
    setAccessibleName(QStringLiteral("Zeitleiste"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(m_scrollBar, &QScrollBar::valueChanged, this,
            [this](int value) { Show(static_cast<double>(value) / m_perSecond, m_perSecond); });
    connect(m_minus, &QToolButton::clicked, this, [this] { ZoomAtCursor(1 / kZoomStep); });
    connect(m_plus, &QToolButton::clicked, this, [this] { ZoomAtCursor(kZoomStep); });
    connect(m_whole, &QToolButton::clicked, this, &TimelineView::ShowAll);
}

QToolButton* TimelineView::NewButton(const char* name, const QString& hint) {
    auto* const button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setToolTip(hint);
    button->setAccessibleName(hint);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

void TimelineView::SetRun(const std::optional<RunTrace>& trace) {
    ChangeKeepingView([&] { m_content.run = trace; });
    if (m_cursor) {
        MoveCursor(m_cursor);
    }
}

void TimelineView::SetOtherRuns(std::vector<DashedRun> others) {
    ChangeKeepingView([&] { m_content.others = std::move(others); });
}

void TimelineView::SetProposedNights(std::vector<cSchlafzeit> nights) {
    ChangeKeepingView([&] { m_content.proposedNights = std::move(nights); });
}

void TimelineView::SetPictures(const PerItem<QPixmap>& pictures) {
    m_pictures = pictures;
    // Sharp at this screen's scale.
    m_look.pictures =
        ScaledPictures(pictures, static_cast<int>(std::ceil(kPictureSide * devicePixelRatioF())));
    update();
}

void TimelineView::SetAppearance(const QPalette& palette, const QFont& font) {
    m_look.colors = ColorsFor(palette);
    m_look.font = TimelineLook::CaptionFont(font);
    m_minus->setIcon(ToolIcon(Icon::Minus, m_look.colors));
    m_plus->setIcon(ToolIcon(Icon::Plus, m_look.colors));
    m_whole->setIcon(ToolIcon(Icon::WholePlan, m_look.colors));
    SetPictures(m_pictures);
    ChangeKeepingView([this] { PlaceControls(); });
}

void TimelineView::SetChosenRows(const std::set<std::size_t>& rows) {
    m_content.chosenRows = rows;
    update();
}

void TimelineView::SetMarks(std::optional<std::size_t> next, std::optional<std::size_t> refused) {
    if (m_content.nextRow != next || m_content.refusedRow != refused) {
        m_content.nextRow = next;
        m_content.refusedRow = refused;
        update();
    }
}

void TimelineView::SetNow(DateTime now) {
    m_content.now = now;
    update();
}

void TimelineView::BringIntoView(std::size_t row) {
    const StartEvent* const start = m_content.run ? m_content.run->StartOf(row) : nullptr;
    if (start == nullptr) {
        return;
    }
    const TimeScale scale = Scale();
    const double x = scale.X(start->start);
    if (x < scale.left || x + kPictureSide > scale.right) {
        constexpr double kThird = 3;
        Show(start->start.Seconds() - (scale.right - scale.left) / kThird / m_perSecond,
             m_perSecond);
    }
}

TimelineRows TimelineView::Rows() const {
    return TimelineRows::In(TimelinePainter::SpaceIn(QRectF(rect()), m_look.font));
}

TimeScale TimelineView::Scale() const {
    const QRectF plot = Rows().plot;
    return {.left = plot.left(), .right = plot.right(), .first = m_first, .perSecond = m_perSecond};
}

TimelineLayout TimelineView::Layout() const {
    const QFontMetricsF metrics(m_look.font);
    return {m_content, Rows(), Scale(),
            [&](const QString& text) { return metrics.horizontalAdvance(text); }};
}

double TimelineView::MinScale() const {
    return std::max(1.0, Rows().plot.width() - kBehindEnd) / m_content.EndSecond();
}

bool TimelineView::ShowsAll() const {
    constexpr double kRoughly = 1.0001;
    return m_perSecond <= MinScale() * kRoughly || !m_content.run;
}

void TimelineView::ShowAll() {
    Show(0, MinScale());
}

void TimelineView::Show(double first, double perSecond) {
    const double end = m_content.EndSecond();
    const double largest = std::max(MinScale(), std::min(kMaxScale, kMaxWidth / end));
    m_perSecond = std::clamp(perSecond, MinScale(), largest);
    const double page = Rows().plot.width();
    const double beyond = std::max(0.0, end * m_perSecond + kBehindEnd - page);
    m_first = std::clamp(first * m_perSecond, 0.0, beyond) / m_perSecond;
    const QSignalBlocker noEcho(m_scrollBar);
    m_scrollBar->setRange(0, static_cast<int>(std::lround(beyond)));
    m_scrollBar->setPageStep(static_cast<int>(page));
    constexpr int kStep = 40;
    m_scrollBar->setSingleStep(kStep);
    m_scrollBar->setValue(static_cast<int>(std::lround(m_first * m_perSecond)));
    update();
}

void TimelineView::Zoom(double factor, double x) {
    const TimeScale scale = Scale();
    const double place = std::clamp(x, scale.left, scale.right);
    const double second = scale.SecondAt(place);
    Show(m_first, m_perSecond * factor);
    Show(second - (place - scale.left) / m_perSecond, m_perSecond);
}

void TimelineView::ZoomAtCursor(double factor) {
    const TimeScale scale = Scale();
    const double middle = (scale.left + scale.right) / 2;
    const double x = m_cursor ? scale.X(*m_cursor) : middle;
    Zoom(factor, scale.Shows(x, x) ? x : middle);
}

void TimelineView::wheelEvent(QWheelEvent* event) {
    constexpr double kNotch = 120;
    const QPoint delta = event->angleDelta();
    if (delta.y() != 0 && (event->modifiers() & Qt::ShiftModifier) == 0) {
        Zoom(std::pow(kZoomStep, delta.y() / kNotch), event->position().x());
    } else {
        const int moved = delta.x() != 0 ? delta.x() : delta.y();
        Show(m_first - moved / m_perSecond, m_perSecond);
    }
    event->accept();
}

void TimelineView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_pressed = event->pos();
        m_lastPosition = event->pos();
        m_dragging = false;
    }
}

void TimelineView::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) != 0) {
        m_dragging = m_dragging || (event->pos() - m_pressed).manhattanLength() >=
                                       QApplication::startDragDistance();
        if (m_dragging) {
            Show(m_first - (event->pos() - m_lastPosition).x() / m_perSecond, m_perSecond);
            m_lastPosition = event->pos();
        }
    }
    const TimeScale scale = Scale();
    const double x = event->position().x();
    MoveCursor(scale.Shows(x, x) ? std::optional(scale.SecondAt(x)) : std::nullopt);
}

void TimelineView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !m_dragging && m_content.run) {
        if (const auto row = Layout().RowAt(event->position())) {
            emit RowChosen(*row);
        }
    }
    m_dragging = false;
}

void TimelineView::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
    ShowAll();
    // The release that follows must not choose a row.
    m_dragging = true;
}

void TimelineView::leaveEvent(QEvent* /*event*/) {
    MoveCursor(std::nullopt);
}

void TimelineView::keyPressEvent(QKeyEvent* event) {
    const bool withControl = (event->modifiers() & Qt::ControlModifier) != 0;
    const int direction = event->key() == Qt::Key_Right ? 1 : -1;
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
            if (withControl) {
                constexpr double kStep = 10;
                MoveCursor(m_cursor.value_or(m_first) + direction * kStep / m_perSecond);
            } else {
                GoToOrder(direction);
            }
            break;
        case Qt::Key_Home:
            GoToOrder(-static_cast<int>(kMaxWidth));
            break;
        case Qt::Key_End:
            GoToOrder(static_cast<int>(kMaxWidth));
            break;
        case Qt::Key_Plus:
            ZoomAtCursor(kZoomStep);
            break;
        case Qt::Key_Minus:
            ZoomAtCursor(1 / kZoomStep);
            break;
        case Qt::Key_0:
            ShowAll();
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            ChooseAtCursor();
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

// From the chosen row, or else from the cursor.
void TimelineView::GoToOrder(int step) {
    if (!m_content.run || m_content.run->starts.empty()) {
        return;
    }
    const auto& starts = m_content.run->starts;
    const auto last = std::ssize(starts) - 1;
    std::ptrdiff_t target = step > 0 ? 0 : last;
    if (!m_content.chosenRows.empty()) {
        const auto here =
            std::ranges::lower_bound(starts, *m_content.chosenRows.begin(), {}, &StartEvent::row);
        target = here - starts.begin() + step;
    } else if (m_cursor) {
        const auto behind = std::ranges::lower_bound(
            starts, *m_cursor, {},
            [](const StartEvent& start) { return static_cast<double>(start.start.Seconds()); });
        target = behind - starts.begin() + (step > 0 ? step - 1 : step);
    }
    const StartEvent start =
        starts[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(target, 0, last))];
    emit RowChosen(start.row);
    BringIntoView(start.row);
    MoveCursor(start.start.Seconds());
}

void TimelineView::ChooseAtCursor() {
    if (!m_content.run || !m_cursor) {
        return;
    }
    const auto& starts = m_content.run->starts;
    const auto next = std::ranges::find_if(starts, [&](const StartEvent& start) {
        return start.start.Seconds() >= std::floor(*m_cursor);
    });
    if (next != starts.end()) {
        emit RowChosen(next->row);
    }
}

void TimelineView::MoveCursor(std::optional<double> second) {
    if (second) {
        const double end = m_content.run ? m_content.run->Duration().Seconds() : 0;
        second = std::clamp(*second, 0.0, end);
        const TimeScale scale = Scale();
        if (const double x = scale.X(*second); !scale.Shows(x, x)) {
            Show(*second - (x < scale.left ? 0 : (scale.right - scale.left) / m_perSecond),
                 m_perSecond);
        }
    }
    m_cursor = m_content.run ? second : std::nullopt;
    update();
    emit CursorMoved(m_cursor ? std::optional(SimTime(static_cast<Long>(std::floor(*m_cursor))))
                              : std::nullopt);
}

void TimelineView::PlaceControls() {
    const TimelineRows rows = Rows();
    m_scrollBar->setGeometry(rows.scrollBar.toAlignedRect());
    int right = static_cast<int>(rows.legend.right()) - 4;
    for (QToolButton* const button : {m_whole, m_plus, m_minus}) {
        right -= kButton;
        button->setGeometry(right, static_cast<int>(rows.legend.center().y()) - kButton / 2,
                            kButton, kButton);
    }
}

void TimelineView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // Whether all was visible before the change.
    const double change = event->size().width() - event->oldSize().width();
    const double before = std::max(1.0, Rows().plot.width() - change - kBehindEnd);
    constexpr double kRoughly = 1.0001;
    const bool everything = event->oldSize().width() <= 0 || !m_content.run ||
                            m_perSecond * m_content.EndSecond() <= before * kRoughly;
    PlaceControls();
    if (everything) {
        ShowAll();
    } else {
        Show(m_first, m_perSecond);
    }
}

QSize TimelineView::minimumSizeHint() const {
    constexpr int kLeastWidth = 300;
    constexpr int kLeastHeight = 200;
    return {kLeastWidth, kLeastHeight};
}

QSize TimelineView::sizeHint() const {
    constexpr int kWidth = 800;
    constexpr int kHeight = 380;
    return {kWidth, kHeight};
}

void TimelineView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    PaintOn(painter, true);
    if (hasFocus()) {
        TimelineCanvas(painter, m_look).Frame(QRectF(rect()), Color::Accent, 2);
    }
}

void TimelineView::PaintSection(QPainter& painter) {
    PaintOn(painter, false);
}

void TimelineView::PaintOn(QPainter& painter, bool withCursor) {
    const TimelineCanvas canvas(painter, m_look);
    canvas.Fill(QRectF(rect()), Color::Window);
    if (!m_content.run || m_content.run->curve.empty()) {
        return;
    }
    const TimelineLayout layout = Layout();
    const TimelinePainter timeline(canvas, m_content, layout);
    timeline.PaintPlot();
    const RunTrace& run = *m_content.run;
    const auto cursor = withCursor && m_cursor
                            ? std::optional(SimTime(static_cast<Long>(std::floor(*m_cursor))))
                            : std::nullopt;
    const bool isRunning = m_content.now && *m_content.now >= run.conditions.StartDate &&
                           *m_content.now <= run.conditions.WallClock(run.Duration());
    timeline.PaintColumns(cursor ? cursor
                          : isRunning
                              ? std::optional(SimTime(*m_content.now - run.conditions.StartDate))
                              : std::nullopt);
    PaintTop(canvas, layout.Rows());
    timeline.PaintHours(cursor);
    if (cursor) {
        PaintCard(canvas, CardLines(run, *cursor), layout.Scale().X(*cursor),
                  layout.Rows().Content());
    }
}

void TimelineView::PaintTop(const TimelineCanvas& canvas, const TimelineRows& rows) const {
    canvas.Fill(rows.legend, Color::Toolbar);
    constexpr double kMargin = 8;
    const double right = m_minus->geometry().left() - kMargin;
    const double end =
        PaintLegend(canvas, LegendOf(m_content),
                    QRectF(kMargin, rows.legend.top(), right - kMargin, rows.legend.height()));
    const QString span = SpanInSight(rows.plot.width() / m_perSecond);
    if (!ShowsAll() && right - canvas.WidthOf(span) > end) {
        canvas.RightText(right, rows.legend.top(), rows.legend.height(), span, Color::Weak);
    }
}

}  // namespace tarvelin
