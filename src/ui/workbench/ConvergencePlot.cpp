// Draws the line as steps, with its two scales.
#include "ui/workbench/ConvergencePlot.h"

#include <QPainter>
#include <algorithm>

#include "simulation/RunTexts.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/PlotTicks.h"
#include "ui/workbench/TypeSizes.h"
#include "ui/workbench/WorkbenchColors.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr int kMargin = 4;

/// "2 T 16:00", or with the seconds.
QString SpanText(double seconds, bool whole) {
    QString text = ToQString(TimeSpanText(static_cast<Long>(seconds)));
    text.replace(QStringLiteral(" Tage "), QStringLiteral(" T "))
        .replace(QStringLiteral(" Tag "), QStringLiteral(" T "));
    constexpr int kSeconds = 3;
    return whole ? text : text.chopped(kSeconds);
}

}  // namespace

/// The places of a plot.
class ConvergencePlot::Painting {
  public:
    Painting(const ConvergencePlot& plot, QPainter& painter)
        : m_plot(plot),
          m_painter(painter),
          m_colors(ColorsFor(plot.palette())),
          m_bottom(plot.m_points.back().duration),
          m_top(std::max(plot.m_points.front().duration, m_bottom + 1)) {
        painter.setFont(TypeFont(plot.font(), TypeSize::Caption));
        const QFontMetrics metrics = painter.fontMetrics();
        const int scale = metrics.horizontalAdvance(QStringLiteral("00 T 00:00:00 ")) + kMargin;
        m_rect = QRectF(plot.rect())
                     .adjusted(2 * kMargin, metrics.height() / 2.0 + kMargin, -scale,
                               -metrics.height() - kMargin);
    }

    void DrawScales() {
        const QFontMetrics metrics = m_painter.fontMetrics();
        constexpr int kTryLabels = 4;
        const auto total = static_cast<std::int64_t>(m_plot.m_total);
        m_painter.setPen(m_colors[Color::Weak]);
        const std::int64_t step = RoundStep(total, kTryLabels);
        for (std::int64_t tries = 0; tries <= total; tries += step) {
            const QString text = ToQString(GroupedText(static_cast<double>(tries)));
            const double x =
                std::clamp(XOf(static_cast<double>(tries)) - metrics.horizontalAdvance(text) / 2.0,
                           0.0, m_plot.width() - 1.0 * metrics.horizontalAdvance(text));
            m_painter.drawText(QPointF(x, m_plot.height() - metrics.descent() - 1), text);
        }
        constexpr int kDurationLabels = 2;
        constexpr int kHour = 3600;
        const auto hours = static_cast<std::int64_t>((m_top - m_bottom) / kHour) + 1;
        const double hourStep = static_cast<double>(kHour * RoundStep(hours, kDurationLabels));
        for (double duration = std::ceil(m_bottom / hourStep) * hourStep; duration <= m_top;
             duration += hourStep) {
            const double y = YOf(duration);
            if (std::abs(y - YOf(m_bottom)) < metrics.height()) {
                continue;
            }
            m_painter.setPen(m_colors[Color::Line]);
            m_painter.drawLine(QPointF(m_rect.left(), y), QPointF(m_rect.right(), y));
            m_painter.setPen(m_colors[Color::Weak]);
            DrawLabel(y, SpanText(duration, false));
        }
    }

    void DrawLine() {
        QPolygonF line;
        for (const Point& point : m_plot.m_points) {
            const QPointF place(XOf(point.tries), YOf(point.duration));
            if (!line.isEmpty()) {
                line << QPointF(place.x(), line.back().y());
            }
            line << place;
        }
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setPen(QPen(m_colors[Color::Accent], 2));
        m_painter.drawPolyline(line);
        m_painter.setBrush(m_colors[Color::Accent]);
        constexpr qreal kDot = 3;
        m_painter.drawEllipse(line.back(), kDot, kDot);
        m_painter.setFont(TypeFont(m_plot.font(), TypeSize::Caption, true));
        DrawLabel(line.back().y(), SpanText(m_bottom, true));
    }

  private:
    [[nodiscard]] double XOf(double tries) const {
        return m_rect.left() + tries / m_plot.m_total * m_rect.width();
    }
    [[nodiscard]] double YOf(double duration) const {
        return m_rect.bottom() - (duration - m_bottom) / (m_top - m_bottom) * m_rect.height();
    }
    void DrawLabel(double y, const QString& text) {
        const QFontMetrics metrics = m_painter.fontMetrics();
        m_painter.drawText(
            QPointF(m_rect.right() + 2 * kMargin, y + (metrics.ascent() - metrics.descent()) / 2.0),
            text);
    }

    const ConvergencePlot& m_plot;
    QPainter& m_painter;
    WorkbenchColors m_colors;
    double m_bottom;
    double m_top;
    QRectF m_rect;
};

ConvergencePlot::ConvergencePlot(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("Bestenkurve"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ConvergencePlot::Clear() {
    m_points.clear();
    setAccessibleName(QString());
    update();
}

void ConvergencePlot::AddPoint(std::uint64_t tries, Long duration, std::uint64_t totalTries) {
    m_total = static_cast<double>(std::max(std::uint64_t{1}, totalTries));
    m_points.push_back({static_cast<double>(tries), static_cast<double>(duration)});
    setAccessibleName(QStringLiteral("Bisher am schnellsten: ") +
                      ToQString(TimeSpanText(duration)));
    update();
}

QSize ConvergencePlot::sizeHint() const {
    constexpr int kWidth = 200;
    constexpr int kHeight = 64;
    return {kWidth, kHeight};
}

void ConvergencePlot::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (!m_points.empty()) {
        Painting painting(*this, painter);
        painting.DrawScales();
        painting.DrawLine();
    }
}

}  // namespace tarvelin
