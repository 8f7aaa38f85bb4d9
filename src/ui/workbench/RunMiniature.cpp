// Paints the miniature.
#include "ui/workbench/RunMiniature.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "model/ItemTable.h"
#include "ui/look/TypeSizes.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// In pixels.
constexpr int kWidth = 200;
constexpr int kLowest = 46;
constexpr int kLane = 10;
constexpr int kBar = 8;
constexpr int kLanes = 3;
constexpr int kGap = 3;
constexpr Long kDay = 24 * 60 * 60;

}  // namespace

RunMiniature::RunMiniature(RunTrace trace, Long seconds, QWidget* parent)
    : QWidget(parent), m_trace(std::move(trace)), m_seconds(std::max<Long>(seconds, 1)) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize RunMiniature::sizeHint() const {
    const QFontMetrics metrics(TypeFont(font(), TypeSize::Caption));
    return {kWidth, std::max(kLowest, metrics.height() + kLanes * kLane + kGap)};
}

qreal RunMiniature::X(Long seconds) const {
    return static_cast<qreal>(width()) * seconds / m_seconds;
}

void RunMiniature::paintEvent(QPaintEvent* /*event*/) {
    const WorkbenchColors colors = ColorsFor(palette());
    QPainter painter(this);
    painter.setFont(TypeFont(font(), TypeSize::Caption));
    painter.fillRect(rect(), colors[Color::Lane]);
    PaintNights(painter);
    PaintDays(painter);
    PaintOrders(painter);
    painter.fillRect(QRectF(X(m_trace.Duration().Seconds()), 0, 1, height()), colors[Color::Text]);
}

void RunMiniature::PaintNights(QPainter& painter) const {
    const DateTime begin = m_trace.conditions.StartDate;
    const Long end = m_trace.Duration().Seconds();
    for (const cSchlafzeit& night : m_trace.conditions.Schlafzeiten) {
        const Long from = std::max<Long>(night.Startzeit() - begin, 0);
        const Long until = std::min(night.Endzeit() - begin, end);
        if (from < until) {
            painter.fillRect(QRectF(X(from), 0, X(until) - X(from), height()),
                             ColorsFor(palette())[Color::Night]);
        }
    }
}

void RunMiniature::PaintDays(QPainter& painter) const {
    const WorkbenchColors colors = ColorsFor(palette());
    const DateTime begin = m_trace.conditions.StartDate;
    for (DateTime day = StartOfDay(begin) + kDay; day - begin < m_seconds; day = day + kDay) {
        const qreal x = X(day - begin);
        painter.fillRect(QRectF(x, 0, 1, height()), colors[Color::LineStrong]);
        painter.setPen(colors[Color::Weak]);
        painter.drawText(QPointF(x + kGap, painter.fontMetrics().ascent()),
                         ToQString(WeekdayShort(day)));
    }
}

// Research stands between buildings and the shipyard.
void RunMiniature::PaintOrders(QPainter& painter) const {
    constexpr PerQueue<int> kLaneOf{{0, 2, 1, 0}};
    const int top = height() - kLanes * kLane;
    for (const StartEvent& start : m_trace.starts) {
        if (start.order.kind == Order::Kind::Item) {
            const qreal from = X(start.start.Seconds());
            const qreal width = std::max<qreal>(X(start.finish - start.start), 2);
            painter.fillRect(
                QRectF(from, top + kLane * kLaneOf[RowOf(start.order.item).queue], width, kBar),
                ColorsFor(palette())[Color::BarEdge]);
        }
    }
}

}  // namespace tarvelin
