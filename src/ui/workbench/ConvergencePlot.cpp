// Draws the plot as steps.
#include "ui/workbench/ConvergencePlot.h"

#include <QPainter>
#include <algorithm>

#include "ui/workbench/WorkbenchColors.h"

namespace tarvelin {

ConvergencePlot::ConvergencePlot(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Bestenkurve"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ConvergencePlot::Clear() {
    m_points.clear();
    update();
}

void ConvergencePlot::AddPoint(qreal share, qreal duration) {
    m_points.emplace_back(share, duration);
    update();
}

QSize ConvergencePlot::sizeHint() const {
    constexpr int kLines = 3;
    return {kLines * fontMetrics().height(), kLines * fontMetrics().height()};
}

void ConvergencePlot::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (m_points.empty()) {
        return;
    }
    const qreal top = m_points.front().y();
    const qreal span = std::max(1.0, top - m_points.back().y());
    constexpr qreal kMargin = 3;
    const QRectF plotRect = QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    QPolygonF line;
    for (const QPointF& point : m_points) {
        const qreal y = plotRect.top() + (top - point.y()) / span * plotRect.height();
        const qreal x = plotRect.left() + point.x() * plotRect.width();
        if (!line.isEmpty()) {
            line << QPointF(x, line.back().y());
        }
        line << QPointF(x, y);
    }
    painter.setPen(QPen(ColorsFor(palette())[Color::Accent], 2));
    painter.drawPolyline(line);
}

}  // namespace tarvelin
