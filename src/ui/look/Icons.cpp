// Paints shapes, and gives them to the toolkit as icons.
#include "ui/look/Icons.h"

#include <QIconEngine>
#include <QPainterPath>
#include <QPixmap>
#include <QStringList>
#include <algorithm>
#include <vector>

#include "util/EnumArray.h"

namespace tarvelin {

namespace {

struct ParsedShape {
    Ink ink;
    qreal width;
    QPainterPath path;
};
using Drawing = std::vector<ParsedShape>;

QPainterPath PathOf(const char* commands) {
    const QStringList words = QString::fromLatin1(commands).split(QLatin1Char(' '));
    auto next = words.begin();
    const auto point = [&next] {
        const qreal x = (next++)->toDouble();
        return QPointF(x, (next++)->toDouble());
    };
    QPainterPath path;
    while (next != words.end()) {
        switch ((next++)->front().unicode()) {
            case 'M':
                path.moveTo(point());
                break;
            case 'L':
                path.lineTo(point());
                break;
            case 'C': {
                const QPointF first = point();
                const QPointF second = point();
                path.cubicTo(first, second, point());
                break;
            }
            default:
                path.closeSubpath();
        }
    }
    return path;
}

/// Parsed at the first use.
template <class Name>
const Drawing& DrawingOf(Name name) {
    static const auto drawings = [] {
        EnumArray<Name, Drawing> parsed;
        for (std::size_t i = 0; i < parsed.size(); ++i) {
            for (const Shape& shape : ShapesOf(static_cast<Name>(i))) {
                parsed[i].push_back({shape.ink, shape.width, PathOf(shape.commands)});
            }
        }
        return parsed;
    }();
    return drawings[name];
}

struct Inks {
    QColor text;
    QColor accent;
};

void Paint(QPainter& painter, const Drawing& drawing, qreal side, const QRectF& rect,
           const Inks& inks) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal scale = std::min(rect.width(), rect.height()) / side;
    painter.translate(rect.center());
    painter.scale(scale, scale);
    painter.translate(-side / 2, -side / 2);
    for (const ParsedShape& shape : drawing) {
        const QColor& color = shape.ink == Ink::Accent ? inks.accent : inks.text;
        if (shape.width > 0) {
            painter.strokePath(
                shape.path, QPen(color, shape.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        } else {
            painter.fillPath(shape.path, color);
        }
    }
    painter.restore();
}

/// Paints at the size that is asked for, so nothing is ever scaled.
class Engine : public QIconEngine {
  public:
    Engine(const Drawing& drawing, qreal side, const Inks& inks, const QColor& disabled)
        : m_drawing(drawing), m_side(side), m_inks(inks), m_disabled{disabled, disabled} {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        Paint(*painter, m_drawing, m_side, rect, mode == QIcon::Disabled ? m_disabled : m_inks);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new Engine(*this); }

  private:
    const Drawing& m_drawing;
    qreal m_side;
    Inks m_inks;
    Inks m_disabled;
};

}  // namespace

QIcon ToolIcon(Icon icon, const WorkbenchColors& colors) {
    return QIcon(new Engine(DrawingOf(icon), kIconSide,
                            {colors[Color::Text], colors[Color::Accent]}, colors[Color::Disabled]));
}

QIcon SymbolIcon(Symbol symbol, Color color, const WorkbenchColors& colors) {
    return QIcon(new Engine(DrawingOf(symbol), kSymbolSide, {colors[color], colors[color]},
                            colors[Color::Disabled]));
}

void PaintSymbol(QPainter& painter, Symbol symbol, const QRectF& rect, const QColor& color) {
    Paint(painter, DrawingOf(symbol), kSymbolSide, rect, {color, color});
}

}  // namespace tarvelin
