// A falling line.
#include "ui/workbench/ConvergencePlot.h"

#include <QPainter>
#include <algorithm>

namespace tarvelin {

Bestenkurve::Bestenkurve(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Bestenkurve"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Bestenkurve::Leere() {
    m_punkte.clear();
    update();
}

void Bestenkurve::Merke(qreal anteil, qreal dauer) {
    m_punkte.emplace_back(anteil, dauer);
    update();
}

QSize Bestenkurve::sizeHint() const {
    constexpr int kZeilen = 3;
    return {kZeilen * fontMetrics().height(), kZeilen * fontMetrics().height()};
}

void Bestenkurve::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (m_punkte.empty()) {
        return;
    }
    const qreal oben = m_punkte.front().y();
    const qreal spanne = std::max(1.0, oben - m_punkte.back().y());
    constexpr qreal kRand = 3;
    const QRectF feld = QRectF(rect()).adjusted(kRand, kRand, -kRand, -kRand);
    QPolygonF linie;
    for (const QPointF& punkt : m_punkte) {
        const qreal y = feld.top() + (oben - punkt.y()) / spanne * feld.height();
        const qreal x = feld.left() + punkt.x() * feld.width();
        if (!linie.isEmpty()) {
            linie << QPointF(x, linie.back().y());
        }
        linie << QPointF(x, y);
    }
    painter.setPen(QPen(palette().highlight(), 2));
    painter.drawPolyline(linie);
}

}  // namespace tarvelin
