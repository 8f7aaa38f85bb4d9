// A painter with what all parts of the timeline paint with.
#pragma once

#include <QFontMetricsF>
#include <QPainter>

#include "ui/look/Icons.h"
#include "ui/timeline/PlacedText.h"
#include "ui/timeline/TimelineContent.h"

namespace tarvelin {

/// The line of another run.
[[nodiscard]] inline QPen DashedPen(const QColor& color) {
    constexpr double kWidth = 1.2;
    constexpr double kDash = 3;
    QPen pen(color, kWidth);
    pen.setDashPattern({kDash / kWidth, kDash / kWidth});
    pen.setCapStyle(Qt::FlatCap);
    return pen;
}

class TimelineCanvas {
  public:
    /// All three must outlive the canvas.
    TimelineCanvas(QPainter& painter, const TimelineLook& look)
        : m_painter(painter), m_look(look), m_metrics(look.font), m_bold(look.font) {
        m_bold.setBold(true);
        painter.setFont(look.font);
    }

    [[nodiscard]] QPainter& Painter() const { return m_painter; }
    [[nodiscard]] const TimelineLook& Look() const { return m_look; }
    [[nodiscard]] QColor operator[](Color color) const { return m_look.colors[color]; }
    [[nodiscard]] double Line() const { return m_metrics.height(); }
    [[nodiscard]] double WidthOf(const QString& text) const {
        return m_metrics.horizontalAdvance(text);
    }
    [[nodiscard]] double BoldWidthOf(const QString& text) const {
        return QFontMetricsF(m_bold).horizontalAdvance(text);
    }

    void Fill(const QRectF& rect, Color color) const {
        m_painter.fillRect(rect, m_look.colors[color]);
    }
    /// In the middle of a row's height.
    void Text(double left, double top, double height, const QString& text, Color color) const {
        m_painter.setPen(m_look.colors[color]);
        m_painter.drawText(QPointF(left, Baseline(top, height)), text);
    }
    void BoldText(double left, double top, double height, const QString& text, Color color) const {
        m_painter.setFont(m_bold);
        Text(left, top, height, text, color);
        m_painter.setFont(m_look.font);
    }
    /// Ends at `right`.
    void RightText(double right, double top, double height, const QString& text,
                   Color color) const {
        Text(right - WidthOf(text), top, height, text, color);
    }
    /// 12 pixels wide and high, in the middle of a row's height.
    void Sign(double left, double top, double height, Symbol symbol, Color color) const {
        PaintSymbol(m_painter, symbol,
                    QRectF(left, top + (height - kSymbolSide) / 2, kSymbolSide, kSymbolSide),
                    m_look.colors[color]);
    }
    /// A frame of one pixel inside of `rect`.
    void Frame(const QRectF& rect, Color color, double width = 1,
               Qt::PenStyle style = Qt::SolidLine) const {
        QPen pen(m_look.colors[color], width, style);
        pen.setJoinStyle(Qt::MiterJoin);
        m_painter.setPen(pen);
        m_painter.setBrush(Qt::NoBrush);
        const double half = width / 2;
        m_painter.drawRect(rect.adjusted(half, half, -half, -half));
    }

  private:
    [[nodiscard]] double Baseline(double top, double height) const {
        return top + (height + m_metrics.ascent() - m_metrics.descent()) / 2;
    }

    QPainter& m_painter;
    const TimelineLook& m_look;
    QFontMetricsF m_metrics;
    QFont m_bold;
};

}  // namespace tarvelin
