// Cuts the lines.
#include "ui/timeline/HatchLines.h"

#include <algorithm>
#include <cmath>

namespace tarvelin {

namespace {

constexpr double kApart = 6;
constexpr double kClose = 3;
constexpr double kDots = 4;

/// Lines at 45 degrees; `direction` is 1 for rising ones, -1 for falling ones.
void AddSlanted(QList<QLineF>& lines, const QRectF& rect, double anchor, int direction) {
    const double height = rect.height();
    // Where a line crosses the foot of a rising one, or the top of a falling one.
    const double first = anchor + std::ceil((rect.left() - height - anchor) / kApart) * kApart;
    for (double at = first; at < rect.right(); at += kApart) {
        const double from = std::max(0.0, rect.left() - at);
        const double until = std::min(height, rect.right() - at);
        if (from < until) {
            const double begin = direction > 0 ? rect.bottom() : rect.top();
            lines << QLineF(at + from, begin - direction * from, at + until,
                            begin - direction * until);
        }
    }
}

}  // namespace

QList<QLineF> HatchLines(Hatching hatching, const QRectF& rect, double anchor) {
    QList<QLineF> lines;
    switch (hatching) {
        case Hatching::None:
            break;
        case Hatching::Rising:
            AddSlanted(lines, rect, anchor, 1);
            break;
        case Hatching::Falling:
            AddSlanted(lines, rect, anchor, -1);
            break;
        case Hatching::Crossed:
            AddSlanted(lines, rect, anchor, 1);
            AddSlanted(lines, rect, anchor, -1);
            break;
        case Hatching::Level:
            for (double y = rect.top() + kClose / 2; y < rect.bottom(); y += kClose) {
                lines << QLineF(rect.left(), y, rect.right(), y);
            }
            break;
        case Hatching::Upright: {
            const double first = anchor + std::ceil((rect.left() - anchor) / kClose) * kClose;
            for (double x = first; x < rect.right(); x += kClose) {
                lines << QLineF(x, rect.top(), x, rect.bottom());
            }
            break;
        }
        case Hatching::Dots: {
            const double first = anchor + std::ceil((rect.left() - anchor) / kDots) * kDots;
            for (double x = first; x + 1 < rect.right(); x += kDots) {
                for (double y = rect.top() + kDots / 2; y < rect.bottom(); y += kDots) {
                    lines << QLineF(x, y, x + 1, y);
                }
            }
            break;
        }
    }
    return lines;
}

void PaintHatching(QPainter& painter, Hatching hatching, const QRectF& rect, double anchor,
                   const QColor& color) {
    if (rect.width() <= 0) {
        return;
    }
    const auto lines = HatchLines(hatching, rect, anchor);
    painter.setPen(QPen(color, 1));
    painter.drawLines(lines.constData(), static_cast<int>(lines.size()));
}

}  // namespace tarvelin
