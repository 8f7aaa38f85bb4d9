// Cuts the lines.
#include "ui/timeline/HatchLines.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tarvelin {

namespace {

constexpr double kApart = 6;
constexpr double kClose = 3;
constexpr double kDots = 4;

/// The places `anchor`, `anchor` + `apart` and so on that lie from `from` to `until`, the last left
/// out.
std::vector<double> Places(double anchor, double apart, double from, double until) {
    const double first = anchor + std::ceil((from - anchor) / apart) * apart;
    const auto count = static_cast<std::size_t>(std::max(0.0, std::ceil((until - first) / apart)));
    std::vector<double> places(count);
    for (std::size_t i = 0; i < count; ++i) {
        places[i] = first + static_cast<double>(i) * apart;
    }
    return places;
}

/// Lines at 45 degrees; `direction` is 1 for rising ones, -1 for falling ones.
void AddSlanted(QList<QLineF>& lines, const QRectF& rect, double anchor, int direction) {
    const double height = rect.height();
    const double begin = direction > 0 ? rect.bottom() : rect.top();
    for (const double at : Places(anchor, kApart, rect.left() - height, rect.right())) {
        const double from = std::max(0.0, rect.left() - at);
        const double until = std::min(height, rect.right() - at);
        if (from < until) {
            lines << QLineF(at + from, begin - direction * from, at + until,
                            begin - direction * until);
        }
    }
}

void AddDots(QList<QLineF>& lines, const QRectF& rect, double anchor) {
    for (const double x : Places(anchor, kDots, rect.left(), rect.right() - 1)) {
        for (const double y : Places(rect.top() + kDots / 2, kDots, rect.top(), rect.bottom())) {
            lines << QLineF(x, y, x + 1, y);
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
            for (const double y :
                 Places(rect.top() + kClose / 2, kClose, rect.top(), rect.bottom())) {
                lines << QLineF(rect.left(), y, rect.right(), y);
            }
            break;
        case Hatching::Upright:
            for (const double x : Places(anchor, kClose, rect.left(), rect.right())) {
                lines << QLineF(x, rect.top(), x, rect.bottom());
            }
            break;
        case Hatching::Dots:
            AddDots(lines, rect, anchor);
            break;
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
