// Zoom, scrolling, cursor and keys of the timeline.
#include "ui/workbench/TimelineView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "simulation/StatusTexts.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// Pixels per second at the strongest zoom.
constexpr qreal kMaxScale = 20;
/// Keeps the whole width within the range of a scroll bar.
constexpr qreal kMaxWidth = 1e9;
constexpr qreal kZoomStep = 1.25;

}  // namespace

/// Keeps the visible part, unless all was visible.
template <class Action>
void TimelineView::ChangeKeepingView(Action action) {
    const bool everything = ShowsAll();
    action();
    m_scene.setSceneRect(m_graphic->boundingRect());
    if (everything) {
        ShowAll();
    } else {
        SetPixelsPerSecond(PixelsPerSecond());
    }
    viewport()->update();
}

TimelineView::TimelineView(QWidget* parent)
    : QGraphicsView(parent), m_graphic(new TimelineGraphic) {
    setObjectName(QStringLiteral("Zeitleiste"));
    setAccessibleName(QStringLiteral("Zeitleiste"));
    m_scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    m_scene.addItem(m_graphic);
    setScene(&m_scene);
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(NoAnchor);
    // The names of the lanes move with the view.
    setViewportUpdateMode(FullViewportUpdate);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

void TimelineView::SetRun(const std::optional<RunTrace>& trace) {
    ChangeKeepingView([&] { m_graphic->SetRun(trace); });
}

void TimelineView::SetOtherRun(const std::optional<RunTrace>& other) {
    ChangeKeepingView([&] { m_graphic->SetOtherRun(other); });
}

void TimelineView::SetAppearance(const QPalette& palette, const QFont& font) {
    const WorkbenchColors colors = ColorsFor(palette);
    m_graphic->SetAppearance(colors, font);
    setBackgroundBrush(colors[Color::Background]);
    setMinimumHeight(static_cast<int>(std::ceil(m_graphic->MinHeight())) +
                     horizontalScrollBar()->sizeHint().height());
    FitHeight();
}

void TimelineView::BringIntoView(std::size_t row) {
    const auto bar = m_graphic->BarOf(row);
    if (!bar) {
        return;
    }
    const int left = mapFromScene(bar->topLeft()).x();
    const int right = mapFromScene(bar->topRight()).x();
    const int width = viewport()->width();
    if (left < 0 || left >= width || (right >= width && right - left < width)) {
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + left - width / 3);
    }
}

void TimelineView::SetNow(DateTime now) {
    m_now = now;
    viewport()->update();
}

qreal TimelineView::MinScale() const {
    constexpr int kMargin = 4;
    return std::max(1, viewport()->width() - kMargin) / m_graphic->EndSecond();
}

bool TimelineView::ShowsAll() const {
    constexpr qreal kRoughly = 1.0001;
    return PixelsPerSecond() <= MinScale() * kRoughly || !m_graphic->Run();
}

void TimelineView::ShowAll() {
    SetPixelsPerSecond(MinScale());
}

void TimelineView::SetPixelsPerSecond(qreal perSecond) {
    const qreal largest =
        std::max(MinScale(), std::min(kMaxScale, kMaxWidth / m_graphic->EndSecond()));
    setTransform(QTransform::fromScale(std::clamp(perSecond, MinScale(), largest), 1));
}

void TimelineView::Zoom(qreal factor, int column) {
    const qreal second = mapToScene(column, 0).x();
    SetPixelsPerSecond(PixelsPerSecond() * factor);
    const int moved = mapFromScene(QPointF(second, 0)).x() - column;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + moved);
}

void TimelineView::wheelEvent(QWheelEvent* event) {
    constexpr qreal kNotch = 120;
    const QPoint delta = event->angleDelta();
    if (delta.y() == 0) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    Zoom(std::pow(kZoomStep, delta.y() / kNotch), event->position().toPoint().x());
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
            horizontalScrollBar()->setValue(horizontalScrollBar()->value() -
                                            (event->pos() - m_lastPosition).x());
            m_lastPosition = event->pos();
        }
    }
    MoveCursor(mapToScene(event->pos()).x());
}

void TimelineView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !m_dragging) {
        ChooseAt(event->pos());
    }
    m_dragging = false;
}

void TimelineView::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
    ShowAll();
    // The release that follows must not choose a row.
    m_dragging = true;
}

void TimelineView::ChooseAt(const QPoint& position) {
    constexpr qreal kBeside = 3;
    if (const auto row = m_graphic->RowAt(mapToScene(position), kBeside / PixelsPerSecond())) {
        emit RowChosen(*row);
    }
}

void TimelineView::keyPressEvent(QKeyEvent* event) {
    const qreal cursor = m_cursor.value_or(mapToScene(0, 0).x());
    const int column = mapFromScene(QPointF(cursor, 0)).x();
    constexpr qreal kStep = 10;
    const bool forward = event->key() == Qt::Key_Right;
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
            if ((event->modifiers() & Qt::ControlModifier) != 0) {
                GoToStart(forward);
            } else {
                MoveCursor(cursor + (forward ? kStep : -kStep) / PixelsPerSecond());
            }
            ensureVisible(QRectF(m_cursor.value_or(0), 0, 0, 1), static_cast<int>(kStep), 0);
            break;
        case Qt::Key_Plus:
            Zoom(kZoomStep, column);
            break;
        case Qt::Key_Minus:
            Zoom(1 / kZoomStep, column);
            break;
        case Qt::Key_Home:
            ShowAll();
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (m_graphic->Run() && m_cursor) {
                const auto& starts = m_graphic->Run()->starts;
                const auto next = std::ranges::find_if(starts, [&](const StartEvent& start) {
                    return start.start.Seconds() >= std::floor(*m_cursor);
                });
                if (next != starts.end()) {
                    emit RowChosen(next->row);
                }
            }
            break;
        default:
            QGraphicsView::keyPressEvent(event);
    }
}

void TimelineView::GoToStart(bool forward) {
    if (!m_graphic->Run()) {
        return;
    }
    const qreal here = m_cursor.value_or(-1);
    std::optional<qreal> target;
    for (const StartEvent& start : m_graphic->Run()->starts) {
        const auto there = static_cast<qreal>(start.start.Seconds());
        if (forward ? there > here && !target : there < here) {
            target = there;
        }
    }
    if (target) {
        MoveCursor(target);
    }
}

void TimelineView::MoveCursor(std::optional<qreal> second) {
    if (second) {
        second = std::clamp(*second, 0.0, m_graphic->EndSecond());
    }
    m_cursor = second;
    viewport()->update();
    emit CursorMoved(m_graphic->Run() && second
                         ? std::optional(SimTime(static_cast<Long>(std::floor(*second))))
                         : std::nullopt);
}

bool TimelineView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave) {
        MoveCursor(std::nullopt);
    }
    return QGraphicsView::viewportEvent(event);
}

void TimelineView::FitHeight() {
    m_graphic->SetHeight(viewport()->height());
    m_scene.setSceneRect(m_graphic->boundingRect());
}

void TimelineView::resizeEvent(QResizeEvent* event) {
    // Whether all was visible before the change.
    const bool everything =
        event->oldSize().width() <= 0 ||
        PixelsPerSecond() * m_graphic->EndSecond() <= static_cast<qreal>(event->oldSize().width());
    QGraphicsView::resizeEvent(event);
    FitHeight();
    if (everything) {
        ShowAll();
    } else {
        SetPixelsPerSecond(PixelsPerSecond());
    }
}

void TimelineView::drawForeground(QPainter* painter, const QRectF& rect) {
    if (!m_graphic->Run()) {
        return;
    }
    const auto line = [&](qreal second, const QColor& color) {
        painter->setPen(QPen(color, 0));
        painter->drawLine(QPointF(second, rect.top()), QPointF(second, rect.bottom()));
    };
    const RunTrace& trace = *m_graphic->Run();
    const RunConditions& conditions = trace.conditions;
    if (m_now && *m_now >= conditions.StartDate &&
        *m_now <= conditions.WallClock(trace.Duration())) {
        const auto now = static_cast<qreal>(*m_now - conditions.StartDate);
        line(now, m_graphic->Colors()[Color::Now]);
        const QPoint position = mapFromScene(QPointF(now, 0));
        const QString text = QStringLiteral("jetzt ") + ToQString(TimeOfDayText(*m_now));
        const QFontMetrics metrics(font());
        const bool left = position.x() + metrics.horizontalAdvance(text) > viewport()->width();
        painter->save();
        painter->resetTransform();
        painter->setFont(font());
        painter->setPen(m_graphic->Colors()[Color::Now]);
        painter->drawText(
            QPoint(left ? position.x() - metrics.horizontalAdvance(text) - 4 : position.x() + 4,
                   viewport()->height() - metrics.descent() - 2),
            text);
        painter->restore();
    }
    if (m_cursor) {
        line(*m_cursor, m_graphic->Colors()[Color::Text]);
    }
}

void TimelineView::PaintOn(QPainter& painter, const QRectF& rect) {
    painter.fillRect(rect, m_graphic->Colors()[Color::Background]);
    m_scene.render(&painter, rect, mapToScene(viewport()->rect()).boundingRect(),
                   Qt::IgnoreAspectRatio);
}

}  // namespace tarvelin
