// Layout and painting of the picture.
#include "ui/workbench/TimelineGraphic.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <cmath>
#include <utility>

#include "simulation/RunTexts.h"
#include "ui/widgets/Controls.h"
#include "ui/workbench/TimeAxis.h"
#include "ui/workbench/WaitLook.h"

namespace tarvelin {

namespace {

/// The part of a lane's height that bars take; waits are drawn below them.
constexpr qreal kBarShare = 0.7;
constexpr qreal kMargin = 3;

constexpr PerResource<Color> kStockColors{{Color::Metall, Color::Kristall, Color::Deuterium}};

/// Calls `value` with each point of a run and the time of the next one.
template <class Value>
void ForEachPiece(const RunTrace& trace, Value value) {
    for (std::size_t i = 0; i < trace.curve.size(); ++i) {
        const HistoryPoint& point = trace.curve[i];
        const SimTime until =
            i + 1 < trace.curve.size() ? trace.curve[i + 1].time : trace.Duration();
        value(point, std::max(until, point.time));
    }
}

qreal StockNumber(const HistoryPoint& point, SimTime at, Resource resource) {
    return StockAfter(point, at - point.time)[resource].ToDouble();
}

qreal Balance(const HistoryPoint& point) {
    return static_cast<qreal>(point.EnergieProduktion) - static_cast<qreal>(point.EnergieVerbrauch);
}

struct Range {
    qreal from = 0;
    qreal to = 0;

    void Include(qreal value) {
        from = std::min(from, value);
        to = std::max(to, value);
    }
    /// Where a value is drawn in `rect`.
    [[nodiscard]] qreal Y(qreal value, const QRectF& rect) const {
        return rect.bottom() - (value - from) / std::max(1.0, to - from) * rect.height();
    }
};

}  // namespace

const std::array<TimelineGraphic::Lane, 3> TimelineGraphic::kLanes{{
    {Queue::Building, "Gebäude"},
    {Queue::Research, "Forschung"},
    {Queue::Shipyard, "Werft"},
}};

/// Paints in pixels, so that nothing is stretched with the scene.
class TimelineGraphic::Renderer {
  public:
    Renderer(const TimelineGraphic& graphic, QPainter& painter, const QRectF& view)
        : m_graphic(graphic), m_trace(*graphic.m_trace), m_painter(painter) {
        const QTransform before = painter.worldTransform();
        m_perSecond = before.m11() / before.m22();
        m_left = X(view.left());
        m_right = X(view.right());
        painter.setWorldTransform(
            QTransform(before.m22(), 0, 0, before.m22(), before.dx(), before.dy()));
        painter.setFont(graphic.m_font);
    }

    void Draw() {
        DrawLanes();
        DrawAxis();
        DrawSleep();
        for (std::size_t i = 0; i < m_trace.starts.size(); ++i) {
            DrawWaits(i);
        }
        for (const StartEvent& start : m_trace.starts) {
            if (start.order.kind == Order::Kind::Item) {
                DrawBar(start);
            }
        }
        DrawProductions();
        DrawStocks();
        DrawEnergy();
        DrawNames();
    }

  private:
    [[nodiscard]] qreal X(qreal second) const { return second * m_perSecond; }
    [[nodiscard]] qreal X(SimTime moment) const { return X(static_cast<qreal>(moment.Seconds())); }
    [[nodiscard]] QRectF AcrossView(const QRectF& surface) const {
        return {m_left, surface.top(), m_right - m_left, surface.height()};
    }
    [[nodiscard]] bool InView(qreal from, qreal until) const {
        return until >= m_left && from <= m_right;
    }

    /// A text on a translucent background. Returns its right end.
    qreal DrawLabel(qreal x, qreal top, const QString& text, const QColor& color) {
        const QFontMetricsF metrics(m_graphic.m_font);
        const QRectF box(x, top, metrics.horizontalAdvance(text), metrics.height());
        QColor background = m_graphic.m_colors[Color::Background];
        constexpr int kOpacity = 190;
        background.setAlpha(kOpacity);
        m_painter.fillRect(box, background);
        m_painter.setPen(color);
        m_painter.drawText(QPointF(x, top + metrics.ascent()), text);
        return box.right();
    }

    void DrawLanes() {
        for (const Lane& lane : kLanes) {
            m_painter.fillRect(AcrossView(m_graphic.LaneRect(lane.queue)),
                               m_graphic.m_colors[Color::Lane]);
        }
    }

    void DrawAxis() {
        const QFontMetricsF metrics(m_graphic.m_font);
        const TimeAxis axis(m_perSecond,
                            metrics.horizontalAdvance(QStringLiteral(" Mo 20.11. 00:00:00 ")));
        const QRectF bottom = m_graphic.EnergyRect();
        const DateTime begin = m_trace.conditions.StartDate;
        axis.ForEachTick(begin, m_left / m_perSecond, m_right / m_perSecond,
                         [&](std::int64_t second, const std::string& text) {
                             const qreal x = X(static_cast<qreal>(second));
                             m_painter.setPen(m_graphic.m_colors[Color::Line]);
                             m_painter.drawLine(QPointF(x, m_graphic.AxisHeight()),
                                                QPointF(x, bottom.bottom()));
                             m_painter.setPen(m_graphic.m_colors[Color::Text]);
                             m_painter.drawText(QPointF(x + kMargin, metrics.ascent() + kMargin),
                                                ToQString(text));
                         });
    }

    void DrawSleep() {
        for (const cSchlafzeit& sleepWindow : m_trace.conditions.Schlafzeiten) {
            const DateTime begin = m_trace.conditions.StartDate;
            const qreal from = X(static_cast<qreal>(sleepWindow.Startzeit() - begin));
            const qreal until = X(static_cast<qreal>(sleepWindow.Endzeit() - begin));
            if (InView(from, until)) {
                const QRectF bottom = m_graphic.LaneRect(kLanes.back().queue);
                m_painter.fillRect(QRectF(std::max(from, m_left), m_graphic.AxisHeight(),
                                          std::min(until, m_right) - std::max(from, m_left),
                                          bottom.bottom() - m_graphic.AxisHeight()),
                                   m_graphic.m_colors[Color::Night]);
            }
        }
    }

    void DrawWaits(std::size_t index) {
        const StartEvent& start = m_trace.starts[index];
        const qreal from = X(m_graphic.WaitsSince(index));
        const qreal until = X(start.start);
        if (start.delay.cause == DelayCause::None || !InView(from, until) || until <= from) {
            return;
        }
        const QRectF lane = m_graphic.LaneRect(start.order.queue);
        QColor color = m_graphic.m_colors[LookOf(start.delay).symbolColor];
        constexpr int kPale = 130;
        color.setAlpha(kPale);
        m_painter.fillRect(QRectF(from, lane.top() + kBarShare * lane.height() + 1, until - from,
                                  (1 - kBarShare) * lane.height() - kMargin),
                           color);
    }

    void DrawBar(const StartEvent& start) {
        const QRectF scene = *m_graphic.BarOf(start.row);
        const QRectF bar(X(scene.left()), scene.top(), std::max(1.0, X(scene.width())),
                         scene.height());
        if (!InView(bar.left(), bar.right())) {
            return;
        }
        const WorkbenchColors& colors = m_graphic.m_colors;
        const bool chosen = m_graphic.m_chosen.contains(start.row);
        // Too narrow for a frame, it would be lost on the lane.
        constexpr qreal kNarrow = 3;
        const bool narrow = bar.width() <= kNarrow;
        m_painter.fillRect(bar, colors[narrow ? Color::BarEdge : Color::Bar]);
        m_painter.setPen(QPen(colors[chosen ? Color::Accent : Color::BarEdge], chosen ? 2 : 1));
        if (chosen || !narrow) {
            m_painter.drawRect(bar);
        }
        // The text of a bar that begins left of the view begins at the edge.
        DrawContent(start, bar.intersected(QRectF(m_left, 0, m_right - m_left, bar.bottom()))
                               .adjusted(kMargin, 0, -kMargin, 0));
    }

    void DrawContent(const StartEvent& start, QRectF box) {
        const QPixmap& picture = m_graphic.m_pictures[start.order.item];
        const qreal side = box.height() - 2;
        if (!picture.isNull() && box.width() >= side) {
            m_painter.drawPixmap(QRectF(box.left(), box.top() + 1, side, side), picture,
                                 QRectF(picture.rect()));
            box.setLeft(box.left() + side + kMargin);
        }
        const QFontMetricsF metrics(m_graphic.m_font);
        if (box.width() < metrics.horizontalAdvance(QStringLiteral("Met..."))) {
            return;
        }
        m_painter.setPen(m_graphic.m_colors[Color::Text]);
        m_painter.drawText(
            box, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter),
            metrics.elidedText(ToQString(OrderText(start)), Qt::ElideRight, box.width()));
    }

    void DrawProductions() {
        for (const StartEvent& start : m_trace.starts) {
            const qreal x = X(start.start);
            if (start.order.kind != Order::Kind::Production || !InView(x - kMargin, x + kMargin)) {
                continue;
            }
            const bool chosen = m_graphic.m_chosen.contains(start.row);
            const QRectF lane = m_graphic.LaneRect(Queue::Building);
            m_painter.setPen(
                QPen(m_graphic.m_colors[chosen ? Color::Accent : Color::Energy], 2, Qt::DashLine));
            m_painter.drawLine(QPointF(x, lane.top()), QPointF(x, m_graphic.EnergyRect().bottom()));
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(m_graphic.m_colors[Color::Energy]);
            const qreal side = 2 * kMargin;
            m_painter.drawPolygon(
                QPolygonF({QPointF(x - side, lane.top()), QPointF(x + side, lane.top()),
                           QPointF(x, lane.top() + side)}));
            m_painter.setBrush(Qt::NoBrush);
        }
    }

    template <class Value>
    void DrawCurve(const RunTrace& trace, const QRectF& rect, const Range& range,
                   const QColor& color, Value value) {
        QPolygonF line;
        ForEachPiece(trace, [&](const HistoryPoint& point, SimTime until) {
            if (InView(X(point.time), X(until))) {
                line << QPointF(X(point.time), range.Y(value(point, point.time), rect))
                     << QPointF(X(until), range.Y(value(point, until), rect));
            }
        });
        constexpr qreal kLineWidth = 1.5;
        m_painter.setPen(QPen(color, kLineWidth));
        m_painter.drawPolyline(line);
    }

    /// The zero line, and the name with the range of values. Returns the right end of the text.
    qreal DrawScale(const QRectF& rect, const Range& range, const QString& name) {
        m_painter.setPen(m_graphic.m_colors[Color::LineStrong]);
        const qreal zero = range.Y(0, rect);
        m_painter.drawLine(QPointF(m_left, zero), QPointF(m_right, zero));
        const QString from = range.from < 0
                                 ? QStringLiteral(" von %1").arg(std::ceil(range.from), 0, 'f', 0)
                                 : QString();
        const QString text =
            name + from + QStringLiteral(" bis %1 ").arg(std::floor(range.to), 0, 'f', 0);
        return DrawLabel(m_left + kMargin, rect.top(), text, m_graphic.m_colors[Color::Text]);
    }

    void DrawStocks() {
        const QRectF rect = m_graphic.StockRect();
        Range range;
        const auto include = [&](const RunTrace& trace) {
            ForEachPiece(trace, [&](const HistoryPoint& point, SimTime until) {
                for (const Resource resource : kResources) {
                    range.Include(StockNumber(point, point.time, resource));
                    range.Include(StockNumber(point, until, resource));
                }
            });
        };
        include(m_trace);
        if (m_graphic.m_other) {
            include(*m_graphic.m_other);
        }
        m_painter.setRenderHint(QPainter::Antialiasing);
        for (const Resource resource : kResources) {
            const auto stock = [resource](const HistoryPoint& historyPoint, SimTime at) {
                return StockNumber(historyPoint, at, resource);
            };
            const QColor color = m_graphic.m_colors[kStockColors[resource]];
            if (m_graphic.m_other) {
                QColor pale = color;
                constexpr int kPale = 90;
                pale.setAlpha(kPale);
                DrawCurve(*m_graphic.m_other, rect, range, pale, stock);
            }
            DrawCurve(m_trace, rect, range, color, stock);
        }
        m_painter.setRenderHint(QPainter::Antialiasing, false);
        qreal x = DrawScale(rect, range, QStringLiteral("Vorräte"));
        for (const Resource resource : kResources) {
            const QString end(resource == kResources.back() ? 1 : 0, QLatin1Char(' '));
            x = DrawLabel(x, rect.top(),
                          QStringLiteral("  ") + ToQString(kResourceNames[resource]) + end,
                          m_graphic.m_colors[kStockColors[resource]]);
        }
    }

    void DrawEnergy() {
        const QRectF rect = m_graphic.EnergyRect();
        Range range;
        ForEachPiece(m_trace,
                     [&](const HistoryPoint& point, SimTime) { range.Include(Balance(point)); });
        const qreal zero = range.Y(0, rect);
        ForEachPiece(m_trace, [&](const HistoryPoint& point, SimTime until) {
            if (!InView(X(point.time), X(until))) {
                return;
            }
            const qreal balance = Balance(point);
            const qreal y = range.Y(balance, rect);
            m_painter.fillRect(
                QRectF(X(point.time), std::min(y, zero), X(until) - X(point.time),
                       std::abs(zero - y)),
                m_graphic.m_colors[balance < 0 ? Color::Deficit : Color::EnergyCurve]);
        });
        DrawScale(rect, range, QStringLiteral("Energie"));
    }

    void DrawNames() {
        const qreal height = QFontMetricsF(m_graphic.m_font).height();
        for (const Lane& lane : kLanes) {
            const qreal bottom = m_graphic.LaneRect(lane.queue).bottom();
            DrawLabel(m_left + kMargin, bottom - height, QString::fromUtf8(lane.name),
                      m_graphic.m_colors[Color::Weak]);
        }
    }

    const TimelineGraphic& m_graphic;
    const RunTrace& m_trace;
    QPainter& m_painter;
    qreal m_perSecond = 1;
    /// The ends of the visible part, in pixels.
    qreal m_left = 0;
    qreal m_right = 0;
};

TimelineGraphic::TimelineGraphic() {
    // Gives `paint` the visible part.
    setFlag(ItemUsesExtendedStyleOption);
}

void TimelineGraphic::SetRun(const std::optional<RunTrace>& trace) {
    prepareGeometryChange();
    m_trace = trace;
}

void TimelineGraphic::SetOtherRun(const std::optional<RunTrace>& other) {
    prepareGeometryChange();
    m_other = other;
}

void TimelineGraphic::SetPictures(const PerItem<QPixmap>& pictures) {
    m_pictures = pictures;
    update();
}

void TimelineGraphic::SetAppearance(const WorkbenchColors& colors, const QFont& font) {
    prepareGeometryChange();
    m_colors = colors;
    m_font = font;
}

void TimelineGraphic::SetHeight(qreal height) {
    prepareGeometryChange();
    m_height = std::max(height, MinHeight());
}

void TimelineGraphic::SetChosenRows(std::set<std::size_t> rows) {
    m_chosen = std::move(rows);
    update();
}

qreal TimelineGraphic::LineHeight() const {
    return QFontMetricsF(m_font).height();
}

qreal TimelineGraphic::AxisHeight() const {
    return LineHeight() + 2 * kMargin;
}

qreal TimelineGraphic::LaneHeight() const {
    constexpr qreal kLines = 2.5;
    return kLines * LineHeight();
}

qreal TimelineGraphic::MinHeight() const {
    constexpr qreal kCurves = 6;
    return AxisHeight() + static_cast<qreal>(kLanes.size()) * (LaneHeight() + kMargin) +
           kCurves * LineHeight();
}

qreal TimelineGraphic::EndSecond() const {
    const auto until = [](const std::optional<RunTrace>& trace) {
        return trace ? static_cast<qreal>(trace->Duration().Seconds()) : 0.0;
    };
    return std::max({1.0, until(m_trace), until(m_other)});
}

QRectF TimelineGraphic::LaneRect(Queue queue) const {
    const auto* const lane = std::ranges::find(kLanes, queue, &Lane::queue);
    const auto index = static_cast<qreal>(lane == kLanes.end() ? 0 : lane - kLanes.begin());
    return {0, AxisHeight() + index * (LaneHeight() + kMargin), EndSecond(), LaneHeight()};
}

QRectF TimelineGraphic::StockRect() const {
    const qreal top = LaneRect(kLanes.back().queue).bottom() + 2 * kMargin;
    constexpr qreal kShare = 0.68;
    return {0, top, EndSecond(), (m_height - top) * kShare - 2 * kMargin};
}

QRectF TimelineGraphic::EnergyRect() const {
    const qreal top = StockRect().bottom() + 2 * kMargin;
    return {0, top, EndSecond(), m_height - top - kMargin};
}

SimTime TimelineGraphic::WaitsSince(std::size_t index) const {
    return index == 0 ? SimTime() : m_trace->starts[index - 1].start;
}

std::optional<QRectF> TimelineGraphic::BarOf(std::size_t row) const {
    const StartEvent* const start = m_trace ? m_trace->StartOf(row) : nullptr;
    if (start == nullptr) {
        return std::nullopt;
    }
    const QRectF lane = LaneRect(start->order.queue);
    return QRectF(start->start.Seconds(), lane.top() + 1, start->finish - start->start,
                  kBarShare * lane.height() - 1);
}

std::optional<std::size_t> TimelineGraphic::RowAt(const QPointF& position, qreal beside) const {
    if (!m_trace) {
        return std::nullopt;
    }
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < m_trace->starts.size(); ++i) {
        const StartEvent& start = m_trace->starts[i];
        const QRectF bar = *BarOf(start.row);
        const QRectF lane = LaneRect(start.order.queue);
        const bool onBar = position.y() <= bar.bottom();
        const qreal from = onBar ? bar.left() : static_cast<qreal>(WaitsSince(i).Seconds());
        const qreal until = onBar ? bar.right() : bar.left();
        if (position.y() >= lane.top() && position.y() <= lane.bottom() &&
            position.x() >= from - beside && position.x() <= until + beside) {
            found = start.row;
        }
    }
    return found;
}

QRectF TimelineGraphic::boundingRect() const {
    return {0, 0, EndSecond(), m_height};
}

void TimelineGraphic::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                            QWidget* /*widget*/) {
    if (!m_trace || m_trace->curve.empty()) {
        return;
    }
    painter->save();
    Renderer(*this, *painter, option->exposedRect).Draw();
    painter->restore();
}

}  // namespace tarvelin
