// Draws the line as steps, with its two scales.
#include "ui/workbench/ConvergencePlot.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "simulation/RunTexts.h"
#include "ui/look/ShortDays.h"
#include "ui/look/TypeSizes.h"
#include "ui/look/WorkbenchColors.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/PlotTicks.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr int kMargin = 4;

/// "2 T 16:00", or with the seconds.
QString SpanText(double seconds, bool whole) {
    const QString text = WithShortDays(ToQString(TimeSpanText(static_cast<Long>(seconds))));
    constexpr int kSeconds = 3;
    return whole ? text : text.chopped(kSeconds);
}

QString NumberText(std::int64_t number) {
    return ToQString(GroupedText(static_cast<double>(number)));
}

}  // namespace

/// The places of a plot.
class ConvergencePlot::Painting {
  public:
    Painting(const ConvergencePlot& plot, QPainter& painter)
        : m_plot(plot), m_painter(painter), m_colors(ColorsFor(plot.palette())) {
        // A list with fewer sittings may end later than the fastest.
        const auto [fastest, slowest] =
            std::ranges::minmax_element(plot.m_points, {}, &Point::duration);
        m_bottom = fastest->duration;
        m_top = std::max(slowest->duration, m_bottom + 1);
        painter.setFont(TypeFont(plot.font(), TypeSize::Caption));
        const QFontMetrics metrics = painter.fontMetrics();
        const QFontMetrics bold(TypeFont(plot.font(), TypeSize::Caption, true));
        const int scale = bold.horizontalAdvance(SpanText(m_top, true)) + 3 * kMargin;
        m_rect = QRectF(plot.rect())
                     .adjusted(2 * kMargin, metrics.height() / 2.0 + kMargin, -scale,
                               -metrics.height() - kMargin);
    }

    void DrawTries() {
        const QFontMetrics metrics = m_painter.fontMetrics();
        m_painter.setPen(m_colors[Color::Weak]);
        const auto total = static_cast<std::int64_t>(m_plot.m_total);
        const int widest = metrics.horizontalAdvance(NumberText(total) + QStringLiteral("  "));
        const int count = std::max(1, static_cast<int>(m_rect.width()) / widest);
        for (const std::int64_t tries : Ticks(0, total, RoundStep(total, count))) {
            const QString text = NumberText(tries);
            const int advance = metrics.horizontalAdvance(text);
            const double x = std::clamp(XOf(static_cast<double>(tries)) - advance / 2.0, 0.0,
                                        m_plot.width() - 1.0 * advance);
            m_painter.drawText(QPointF(x, m_plot.height() - metrics.descent() - 1), text);
        }
    }

    void DrawDurations() {
        const QFontMetrics metrics = m_painter.fontMetrics();
        const auto first = static_cast<std::int64_t>(m_bottom);
        const auto last = static_cast<std::int64_t>(m_top);
        constexpr int kCount = 2;
        for (const std::int64_t tick : Ticks(first, last, RoundTimeStep(last - first, kCount))) {
            const auto duration = static_cast<double>(tick);
            const double y = YOf(duration);
            m_painter.setPen(m_colors[Color::Line]);
            m_painter.drawLine(QPointF(m_rect.left(), y), QPointF(m_rect.right(), y));
            if (std::abs(y - YOf(m_plot.m_points.back().duration)) >= metrics.height()) {
                m_painter.setPen(m_colors[Color::Weak]);
                DrawLabel(y, SpanText(duration, false));
            }
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
        DrawLabel(line.back().y(), SpanText(m_plot.m_points.back().duration, true));
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
    double m_bottom = 0;
    double m_top = 0;
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
        painting.DrawTries();
        painting.DrawDurations();
        painting.DrawLine();
    }
}

}  // namespace tarvelin
