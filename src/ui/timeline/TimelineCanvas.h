// A painter with what all parts of the timeline paint with.
#pragma once

#include <QFontMetricsF>
#include <QPainter>

#include "ui/look/Icons.h"
#include "ui/timeline/PlacedText.h"
#include "ui/timeline/TimelineContent.h"

namespace tarvelin {

/// The line of another run, of the energy that is needed, of a production row.
[[nodiscard]] inline QPen DashedPen(const QColor& color) {
    constexpr double kWidth = 1.2;
    constexpr double kDash = 3;
    QPen pen(color, kWidth);
    pen.setDashPattern({kDash / kWidth, kDash / kWidth});
    pen.setCapStyle(Qt::FlatCap);
    return pen;
}

[[nodiscard]] inline QFont BoldOf(QFont font) {
    font.setBold(true);
    return font;
}

/// How wide the texts of a font are.
[[nodiscard]] inline TextWidths WidthsOf(const QFont& font) {
    const auto of = [](const QFont& some) {
        return [metrics = QFontMetricsF(some)](const QString& text) {
            return metrics.horizontalAdvance(text);
        };
    };
    return {of(font), of(BoldOf(font))};
}

class TimelineCanvas {
  public:
    /// All three must outlive the canvas.
    TimelineCanvas(QPainter& painter, const TimelineLook& look)
        : m_painter(painter),
          m_look(look),
          m_bold(BoldOf(look.font)),
          m_metrics(look.font),
          m_boldMetrics(m_bold) {}

    [[nodiscard]] QPainter& Painter() const { return m_painter; }
    [[nodiscard]] const TimelineLook& Look() const { return m_look; }
    [[nodiscard]] QColor operator[](Color color) const { return m_look.colors[color]; }
    [[nodiscard]] double Line() const { return m_metrics.height(); }
    [[nodiscard]] double WidthOf(const QString& text) const {
        return m_metrics.horizontalAdvance(text);
    }
    [[nodiscard]] double BoldWidthOf(const QString& text) const {
        return m_boldMetrics.horizontalAdvance(text);
    }

    void Fill(const QRectF& rect, Color color) const {
        m_painter.fillRect(rect, m_look.colors[color]);
    }
    /// In the middle of a row's height.
    void Text(double left, double top, double height, const QString& text, Color color) const {
        DrawText(m_look.font, left, Baseline(top, height), text, color);
    }
    void BoldText(double left, double top, double height, const QString& text, Color color) const {
        DrawText(m_bold, left, Baseline(top, height), text, color);
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
    /// A frame inside of `rect`.
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
    void DrawText(const QFont& font, double left, double baseline, const QString& text,
                  Color color) const {
        m_painter.setFont(font);
        m_painter.setPen(m_look.colors[color]);
        m_painter.drawText(QPointF(left, baseline), text);
    }
    [[nodiscard]] double Baseline(double top, double height) const {
        return top + (height + m_metrics.ascent() - m_metrics.descent()) / 2;
    }

    QPainter& m_painter;
    const TimelineLook& m_look;
    QFont m_bold;
    QFontMetricsF m_metrics;
    QFontMetricsF m_boldMetrics;
};

}  // namespace tarvelin
