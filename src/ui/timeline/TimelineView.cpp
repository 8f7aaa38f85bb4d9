// Zoom, cursor and keys of the timeline.
#include "ui/timeline/TimelineView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <limits>
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
constexpr int kButton = 24;
constexpr std::ptrdiff_t kLastOrder = std::numeric_limits<std::ptrdiff_t>::max();

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

template <class Action>
void TimelineView::ChangeKeepingView(Action action) {
    const bool everything = m_showsAll;
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
    connect(m_minus, &QToolButton::clicked, this, [this] { Zoom(1 / kZoomStep, Middle()); });
    connect(m_plus, &QToolButton::clicked, this, [this] { Zoom(kZoomStep, Middle()); });
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
    MoveCursor(m_cursor);
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
        ScaledPictures(pictures, static_cast<int>(std::ceil(kLanePicture * devicePixelRatioF())));
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
    if (start == nullptr || m_keepsPlace) {
        return;
    }
    const TimeScale scale = Scale();
    const double x = scale.X(start->start);
    if (x < scale.left || x + kLanePicture > scale.right) {
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
    return {m_content, Rows(), Scale(), WidthsOf(m_look.font)};
}

double TimelineView::Middle() const {
    return Rows().plot.center().x();
}

double TimelineView::MinScale() const {
    return WholePlanScale(m_content, Rows());
}

void TimelineView::ShowAll() {
    Show(0, MinScale());
}

void TimelineView::Show(double first, double perSecond) {
    update();
    if (!m_content.run) {
        // Zoom and place stay for the next one.
        return;
    }
    const double end = m_content.EndSecond();
    const double largest = std::max(MinScale(), std::min(kMaxScale, kMaxWidth / end));
    m_perSecond = std::clamp(perSecond, MinScale(), largest);
    m_showsAll = m_perSecond <= MinScale();
    const double page = Rows().plot.width();
    // As far behind the end as if all were in sight.
    const double behind = page - WholePlanScale(m_content, Rows()) * end;
    const double beyond = std::max(0.0, end * m_perSecond + behind - page);
    m_first = std::clamp(first * m_perSecond, 0.0, beyond) / m_perSecond;
    const QSignalBlocker noEcho(m_scrollBar);
    m_scrollBar->setRange(0, static_cast<int>(std::lround(beyond)));
    m_scrollBar->setPageStep(static_cast<int>(page));
    constexpr int kStep = 40;
    m_scrollBar->setSingleStep(kStep);
    m_scrollBar->setValue(static_cast<int>(std::lround(m_first * m_perSecond)));
}

void TimelineView::Zoom(double factor, double x) {
    const TimeScale scale = Scale();
    const double place = std::clamp(x, scale.left, scale.right);
    const double second = scale.SecondAt(place);
    Show(m_first, m_perSecond * factor);
    Show(second - (place - scale.left) / m_perSecond, m_perSecond);
}

void TimelineView::ZoomAtCursor(double factor) {
    Zoom(factor, CursorInSight() ? Scale().X(*m_cursor) : Middle());
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
    // From the dates down, up to the end of the plan.
    const TimeScale scale = Scale();
    const QPointF at = event->position();
    const double end = m_content.run ? scale.X(m_content.run->Duration()) : 0;
    const bool isOverPlan = at.y() >= Rows().days.top() && scale.Shows(at.x(), at.x());
    MoveCursor(isOverPlan && at.x() <= end + 1 ? std::optional(scale.SecondAt(at.x()))
                                               : std::nullopt);
}

void TimelineView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !m_dragging && m_content.run) {
        if (const auto row = Layout().RowAt(event->position())) {
            // What was pointed at stays where it is.
            m_keepsPlace = true;
            emit RowChosen(*row);
            m_keepsPlace = false;
        }
    }
    m_dragging = false;
}

void TimelineView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        return;
    }
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
                ShowCursor();
            } else {
                GoToOrder(OrderBeside(direction));
            }
            break;
        case Qt::Key_Home:
            GoToOrder(0);
            break;
        case Qt::Key_End:
            GoToOrder(kLastOrder);
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

// From the chosen rows, or else from the cursor.
std::ptrdiff_t TimelineView::OrderBeside(int direction) const {
    if (!m_content.run) {
        return 0;
    }
    const auto& starts = m_content.run->starts;
    std::ptrdiff_t behind = 0;
    if (!m_content.chosenRows.empty()) {
        const std::size_t row =
            direction > 0 ? *m_content.chosenRows.rbegin() + 1 : *m_content.chosenRows.begin();
        behind = std::ranges::lower_bound(starts, row, {}, &StartEvent::row) - starts.begin();
    } else {
        const double second = m_cursor.value_or(direction > 0 ? m_first : Scale().Last());
        behind =
            std::ranges::find_if(
                starts, [&](const StartEvent& start) { return start.start.Seconds() >= second; }) -
            starts.begin();
    }
    return direction > 0 ? behind : behind - 1;
}

void TimelineView::GoToOrder(std::ptrdiff_t order) {
    if (!m_content.run || m_content.run->starts.empty()) {
        return;
    }
    const auto& starts = m_content.run->starts;
    const StartEvent start = starts[static_cast<std::size_t>(
        std::clamp<std::ptrdiff_t>(order, 0, std::ssize(starts) - 1))];
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
    if (second && m_content.run) {
        m_cursor = std::clamp<double>(*second, 0, m_content.run->Duration().Seconds());
    } else {
        m_cursor.reset();
    }
    update();
    emit CursorMoved(m_cursor ? std::optional(SimTime(static_cast<Long>(std::floor(*m_cursor))))
                              : std::nullopt);
}

void TimelineView::ShowCursor() {
    const TimeScale scale = Scale();
    if (m_cursor && !CursorInSight()) {
        const bool isLeft = *m_cursor < scale.first;
        Show(isLeft ? *m_cursor : *m_cursor - (scale.Last() - scale.first), m_perSecond);
    }
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
    ChangeKeepingView([this] { PlaceControls(); });
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
    const auto cursor = withCursor ? CursorInSight() : std::nullopt;
    timeline.PaintColumns(cursor ? cursor : m_content.Present());
    PaintTop(canvas, layout.Rows());
    timeline.PaintHours(cursor);
    if (cursor) {
        PaintCard(canvas, CardLines(*m_content.run, *cursor), layout.Scale().X(*cursor),
                  layout.Rows().Content(), QRectF(rect()));
    }
}

std::optional<SimTime> TimelineView::CursorInSight() const {
    if (!m_cursor) {
        return std::nullopt;
    }
    const TimeScale scale = Scale();
    const double x = scale.X(*m_cursor);
    return scale.Shows(x - 1, x + 1)
               ? std::optional(SimTime(static_cast<Long>(std::floor(*m_cursor))))
               : std::nullopt;
}

void TimelineView::PaintTop(const TimelineCanvas& canvas, const TimelineRows& rows) const {
    canvas.Fill(rows.legend, Color::Toolbar);
    constexpr double kMargin = 8;
    const double right = m_minus->geometry().left() - kMargin;
    const double end =
        PaintLegend(canvas, LegendOf(m_content, QStringLiteral("geplant")),
                    QRectF(kMargin, rows.legend.top(), right - kMargin, rows.legend.height()));
    const QString span = SpanInSight(rows.plot.width() / m_perSecond);
    if (!m_showsAll && right - canvas.WidthOf(span) > end) {
        canvas.RightText(right, rows.legend.top(), rows.legend.height(), span, Color::Weak);
    }
}

}  // namespace tarvelin
