// Paints the rows from top to bottom, then what lies over all of them.
#include "ui/timeline/TimelinePainter.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "simulation/MomentState.h"
#include "ui/timeline/HatchLines.h"
#include "ui/widgets/Controls.h"
#include "util/NumberText.h"

namespace tarvelin {

namespace {

constexpr double kNamesWidth = 84;
constexpr double kScalesWidth = 44;
constexpr double kNameMargin = 8;
constexpr double kGap = 4;
constexpr double kCurve = 1.5;
/// Below that a bar has no frame, and would be lost on the lane.
constexpr double kNarrowBar = 4;

constexpr std::array<const char*, kLaneQueues.size()> kLaneNames{"Gebäude", "Forschung", "Werft"};
constexpr const char* kWaitsName = "Wartet auf";
constexpr const char* kEnergyName = "Energie";

/// "Dez. 2026".
QString MonthText(DateTime day) {
    constexpr std::array kMonths{"Jan.", "Feb.", "März", "Apr.", "Mai",  "Juni",
                                 "Juli", "Aug.", "Sep.", "Okt.", "Nov.", "Dez."};
    const QStringList parts = ToQString(DateText(day)).split(QLatin1Char('.'));
    return QString::fromUtf8(kMonths.at(static_cast<std::size_t>(parts[1].toInt() - 1))) +
           QLatin1Char(' ') + parts[2];
}

/// "2.500", "2,5 Mio.".
QString FigureText(double value) {
    struct Unit {
        double size;
        const char* name;
    };
    for (const Unit& unit : {Unit{1e12, " Bio."}, Unit{1e9, " Mrd."}, Unit{1e6, " Mio."}}) {
        if (std::abs(value) >= unit.size) {
            return QString::fromUtf8(value < 0 ? "−" : "") +
                   ToQString(DecimalText(std::abs(value) / unit.size, 1) + unit.name);
        }
    }
    return ToQString(GroupedText(value));
}

}  // namespace

TimelineSpace TimelinePainter::SpaceIn(const QRectF& rect, const QFont& font) {
    const QFontMetricsF metrics(font);
    const double withSign = 2 * kNameMargin + kSymbolSide + kGap;
    const double names =
        std::max({kNamesWidth, withSign + metrics.horizontalAdvance(QStringLiteral("Faktor 0,00")),
                  2 * kNameMargin + metrics.horizontalAdvance(QString::fromUtf8(kWaitsName))});
    const double scales =
        std::max(kScalesWidth, 2 * kGap + metrics.horizontalAdvance(QStringLiteral("100.000")));
    return {.rect = rect, .line = metrics.height(), .names = names, .scales = scales};
}

void TimelinePainter::PaintPlot() const {
    m_canvas.Painter().setRenderHint(QPainter::SmoothPixmapTransform);
    PaintGrounds();
    PaintGrid();
    PaintNights();
    for (const LaneLayout& lane : m_layout.Lanes()) {
        PaintLane(lane);
    }
    PaintWaits();
    PaintStocks();
    PaintEnergy();
    PaintProductions();
    for (const PlacedText& day : m_layout.Days()) {
        m_canvas.BoldText(day.left, m_rows.days.top(), m_rows.days.height(), day.text, Color::Text);
    }
    PaintLines();
}

void TimelinePainter::PaintGrounds() const {
    const QRectF content = m_rows.Content();
    m_canvas.Fill(content, Color::Background);
    m_canvas.Fill(m_rows.PlotPart(m_rows.nights), Color::Lane);
    for (const QRectF& lane : m_rows.lanes) {
        m_canvas.Fill(m_rows.PlotPart(lane), Color::Lane);
        m_canvas.Fill(QRectF(m_rows.plot.left(), lane.bottom() - 1, m_rows.plot.width(), 1),
                      Color::Background);
    }
    m_canvas.Fill(m_rows.PlotPart(m_rows.waits), Color::Lane);
    for (const Resource resource : kResources) {
        const StockField& field = m_layout.Stocks()[resource];
        PaintTint(field.rect, field.curve, field.Y(0), LookOf(resource).ground);
    }
    const EnergyField& energy = m_layout.Energy();
    if (energy.scale.BeginsAtZero()) {
        PaintTint(energy.rect, energy.supply, energy.Y(0), Color::EnergyTint);
    }
}

void TimelinePainter::PaintTint(const QRectF& rect, const QPolygonF& curve, double zero,
                                Color color) const {
    if (rect.isEmpty() || curve.isEmpty()) {
        return;
    }
    QPolygonF area = curve;
    area << QPointF(curve.back().x(), zero) << QPointF(curve.front().x(), zero);
    m_canvas.Painter().setPen(Qt::NoPen);
    m_canvas.Painter().setBrush(m_canvas[color]);
    m_canvas.Painter().drawPolygon(area);
    m_canvas.Painter().setBrush(Qt::NoBrush);
}

void TimelinePainter::PaintGrid() const {
    const DateTime begin = m_content.run->conditions.StartDate;
    const QRectF content = m_rows.Content();
    const double top = m_rows.nights.top();
    const auto lines = [&](std::int64_t step, Color color) {
        for (const std::int64_t second : GridSeconds(begin, m_scale, step)) {
            m_canvas.Fill(
                QRectF(m_scale.X(static_cast<double>(second)), top, 1, content.bottom() - top),
                color);
        }
    };
    constexpr std::int64_t kDay = 86400;
    const double label = m_canvas.WidthOf(QStringLiteral("00:00"));
    if (const auto step = HourStep(m_scale.perSecond, label); step && *step < kDay) {
        lines(*step, Color::Line);
    }
    lines(kDay * m_layout.DaysApart(), Color::LineStrong);
    for (const Resource resource : kResources) {
        const StockField& field = m_layout.Stocks()[resource];
        for (const double figure : field.figures) {
            m_canvas.Fill(QRectF(content.left(), field.Y(figure), content.width(), 1), Color::Line);
        }
        if (!field.rect.isEmpty()) {
            m_canvas.Fill(QRectF(content.left(), field.Y(0), content.width(), 1),
                          Color::LineStrong);
        }
    }
    const EnergyField& energy = m_layout.Energy();
    for (const double figure : energy.figures) {
        m_canvas.Fill(QRectF(content.left(), energy.Y(figure), content.width(), 1), Color::Line);
    }
}

void TimelinePainter::PaintNights() const {
    const QRectF content = m_rows.Content();
    const auto label = [&](const NightBand& night, Color color) {
        const double width = m_canvas.WidthOf(night.label);
        m_canvas.Text((night.from + night.until - width) / 2, m_rows.nights.top(),
                      m_rows.nights.height(), night.label, color);
    };
    for (const NightBand& night : m_layout.Nights()) {
        const double width = night.until - night.from;
        m_canvas.Fill(QRectF(night.from, content.top(), width, content.height()), Color::Night);
        m_canvas.Fill(QRectF(night.from, m_rows.nights.top(), width, m_rows.nights.height()),
                      Color::NightChip);
        label(night, Color::NightText);
    }
    for (const NightBand& night : m_layout.ProposedNights()) {
        const QRectF band(night.from, m_rows.nights.top(), night.until - night.from,
                          content.bottom() - m_rows.nights.top());
        QColor half = m_canvas[Color::Night];
        half.setAlphaF(half.alphaF() / 2);
        m_canvas.Painter().fillRect(band, half);
        m_canvas.Frame(band, Color::NightText, 1, Qt::DashLine);
        label(night, Color::NightText);
    }
}

void TimelinePainter::PaintLane(const LaneLayout& lane) const {
    PaintBars(lane);
    for (const LaneMark& mark : lane.marks) {
        if (m_scale.Shows(mark.left, mark.right)) {
            PaintMark(lane, mark);
        }
    }
    PaintTexts(lane);
}

void TimelinePainter::PaintBars(const LaneLayout& lane) const {
    std::vector<QRectF> chosen;
    for (const LaneOrder& order : lane.orders) {
        QRectF bar = m_layout.BarOf(lane, order);
        if (!m_scale.Shows(bar.left(), bar.right())) {
            continue;
        }
        // No device has to cut a bar of years.
        bar.setLeft(std::max(bar.left(), m_scale.left - kNarrowBar));
        bar.setRight(std::min(bar.right(), m_scale.right + kNarrowBar));
        const bool isNarrow = order.finish - order.start < kNarrowBar;
        m_canvas.Fill(bar, isNarrow ? Color::BarEdge : Color::Bar);
        if (!isNarrow) {
            m_canvas.Frame(bar, Color::BarEdge);
        }
        if (m_content.chosenRows.contains(order.row)) {
            chosen.push_back(bar.adjusted(-1, -1, 1, 1));
        }
    }
    // Over their neighbours.
    for (const QRectF& bar : chosen) {
        m_canvas.Frame(bar, Color::Accent, 2);
    }
}

bool TimelinePainter::IsChosen(const LaneLayout& lane, const LaneMark& mark) const {
    return std::any_of(
        lane.orders.begin() + static_cast<std::ptrdiff_t>(mark.first),
        lane.orders.begin() + static_cast<std::ptrdiff_t>(mark.first + mark.count),
        [&](const LaneOrder& order) { return m_content.chosenRows.contains(order.row); });
}

void TimelinePainter::PaintMark(const LaneLayout& lane, const LaneMark& mark) const {
    QPainter& painter = m_canvas.Painter();
    const QRectF picture = m_layout.PictureOf(lane, mark);
    const LaneOrder& first = lane.orders[mark.first];
    if (mark.Moved(lane.orders)) {
        const QRectF bar = m_layout.BarOf(lane, first);
        painter.setPen(m_canvas[Color::BarEdge]);
        painter.drawLine(picture.bottomLeft(), QPointF(bar.left() + 1, bar.top()));
    }
    if (mark.count > 1) {
        constexpr double kBehind = 3;
        const QRectF behind = picture.translated(kBehind, -kBehind);
        m_canvas.Fill(behind, Color::Lane);
        m_canvas.Frame(behind, Color::BarEdge);
    }
    const QPixmap& pixmap = m_canvas.Look().pictures[lane.starts[mark.first]->order.item];
    if (!pixmap.isNull()) {
        painter.drawPixmap(picture, pixmap, QRectF(pixmap.rect()));
    }
    const QRectF around = picture.adjusted(-1, -1, 1, 1);
    if (m_content.refusedRow == first.row) {
        m_canvas.Frame(around, Color::Deficit, 2, Qt::DashLine);
    } else if (IsChosen(lane, mark)) {
        m_canvas.Frame(around, Color::Accent, 2);
    } else if (m_content.nextRow == first.row) {
        m_canvas.Frame(around, Color::Now, 2);
    }
    if (mark.count > 1) {
        PaintBadge(picture, mark);
    }
}

void TimelinePainter::PaintBadge(const QRectF& picture, const LaneMark& mark) const {
    const QString text = QString::number(mark.count) + QStringLiteral("×");
    constexpr double kMargin = 3;
    constexpr double kAboveFoot = 1;
    const double height = m_canvas.Line();
    const double width = m_canvas.WidthOf(text) + 2 * kMargin;
    const QRectF badge(mark.right - width, picture.bottom() - kAboveFoot - height, width, height);
    m_canvas.Fill(badge, Color::Badge);
    m_canvas.Text(badge.left() + kMargin, badge.top(), height, text, Color::BadgeText);
}

void TimelinePainter::PaintTexts(const LaneLayout& lane) const {
    const double top = lane.rect.top();
    const double line = m_canvas.Line();
    // Two lines of words are as high as the picture, or a little higher.
    const double band = m_rows.barTop - 2 * line;
    for (const LaneText& text : lane.texts) {
        const PlacedText& placed = text.text;
        switch (text.place) {
            case LaneText::Place::Bar:
                m_canvas.Text(placed.left, top + m_rows.barTop, m_rows.bar, placed.text,
                              Color::Text);
                break;
            case LaneText::Place::Middle:
                m_canvas.Text(placed.left, top + m_rows.pictureTop, m_rows.picture, placed.text,
                              Color::Weak);
                break;
            case LaneText::Place::UpperLine:
                m_canvas.Text(placed.left, top + band / 2, line, placed.text, Color::Text);
                break;
            case LaneText::Place::LowerLine:
                m_canvas.Text(placed.left, top + band / 2 + line, line, placed.text, Color::Weak);
                break;
        }
    }
}

void TimelinePainter::PaintWaits() const {
    for (const WaitPiece& piece : m_layout.Waits()) {
        // A gap parts neighbours of the same look.
        constexpr double kParted = 4;
        const double width = piece.until - piece.from;
        const QRectF rect(piece.from, m_rows.waits.top() + 1,
                          width - (width >= kParted ? 1.0 : 0.0), m_rows.waits.height() - 2);
        m_canvas.Fill(rect, piece.look.ground);
        if (!piece.symbol) {
            PaintHatching(m_canvas.Painter(), piece.look.hatching, rect, piece.anchor,
                          m_canvas[piece.look.hatch]);
            continue;
        }
        const double words = piece.text.isEmpty() ? 0 : kGap + m_canvas.WidthOf(piece.text);
        const double left =
            piece.text.isEmpty() ? rect.center().x() - kSymbolSide / 2.0 : rect.left() + kGap;
        const double right = left + kSymbolSide + words;
        const auto hatch = [&](double from, double until) {
            PaintHatching(m_canvas.Painter(), piece.look.hatching,
                          QRectF(from, rect.top(), until - from, rect.height()), piece.anchor,
                          m_canvas[piece.look.hatch]);
        };
        if (piece.text.isEmpty()) {
            hatch(rect.left(), left - 1);
        }
        hatch(right + kGap, rect.right());
        m_canvas.Sign(left, rect.top(), rect.height(), piece.look.symbol, piece.look.symbolColor);
        m_canvas.Text(left + kSymbolSide + kGap, rect.top(), rect.height(), piece.text,
                      Color::Text);
    }
}

void TimelinePainter::PaintStocks() const {
    QPainter& painter = m_canvas.Painter();
    for (const Resource resource : kResources) {
        const WaitLook look = LookOf(resource);
        const StockField& field = m_layout.Stocks()[resource];
        painter.setRenderHint(QPainter::Antialiasing);
        for (const QPolygonF& other : field.others) {
            painter.setPen(DashedPen(m_canvas[look.symbolColor]));
            painter.drawPolyline(other);
        }
        painter.setPen(QPen(m_canvas[look.symbolColor], kCurve));
        painter.drawPolyline(field.curve);
        painter.setRenderHint(QPainter::Antialiasing, false);
        for (const FieldText& rate : field.rates) {
            // Below the band of a night it would be hard to read.
            m_canvas.Fill(
                QRectF(rate.text.left - 1, rate.top, rate.text.width + 2, m_canvas.Line()),
                rate.below ? look.ground : Color::Background);
            m_canvas.Text(rate.text.left, rate.top, m_canvas.Line(), rate.text.text,
                          look.symbolColor);
        }
    }
}

void TimelinePainter::PaintEnergy() const {
    QPainter& painter = m_canvas.Painter();
    const EnergyField& energy = m_layout.Energy();
    for (const QRectF& deficit : energy.deficits) {
        m_canvas.Fill(deficit, Color::DeficitTint);
        PaintHatching(painter, Hatching::Falling, deficit, m_scale.X(0.0),
                      m_canvas[Color::DeficitHatch]);
    }
    painter.setPen(QPen(m_canvas[Color::EnergyCurve], kCurve));
    painter.drawPolyline(energy.supply);
    painter.setPen(DashedPen(m_canvas[Color::Text]));
    painter.drawPolyline(energy.need);
    for (const FieldText& factor : energy.factors) {
        // Where it lies on the hatching it needs a ground.
        const QRectF box(factor.text.left - 1, factor.top, factor.text.width + 2, m_canvas.Line());
        if (std::ranges::any_of(energy.deficits,
                                [&](const QRectF& deficit) { return deficit.intersects(box); })) {
            m_canvas.Fill(box, Color::DeficitTint);
        }
        m_canvas.Text(factor.text.left, factor.top, m_canvas.Line(), factor.text.text,
                      Color::Deficit);
    }
}

void TimelinePainter::PaintProductions() const {
    QPainter& painter = m_canvas.Painter();
    const QRectF content = m_rows.Content();
    for (const StartEvent* const start : m_layout.Productions()) {
        const double x = m_scale.X(start->start);
        constexpr double kSide = 5;
        if (!m_scale.Shows(x - kSide, x + kSide)) {
            continue;
        }
        const Color color =
            m_content.chosenRows.contains(start->row) ? Color::Accent : Color::Energy;
        painter.setPen(DashedPen(m_canvas[color]));
        painter.drawLine(QPointF(x, content.top()), QPointF(x, content.bottom()));
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_canvas[color]);
        painter.drawPolygon(
            QPolygonF({QPointF(x - kSide, content.top()), QPointF(x + kSide, content.top()),
                       QPointF(x, content.top() + 2 * kSide)}));
        painter.setBrush(Qt::NoBrush);
    }
}

void TimelinePainter::PaintLines() const {
    const double top = m_rows.hours.bottom();
    const double height = m_rows.Content().bottom() - top;
    for (const OverLine& line : m_layout.Lines()) {
        if (!m_scale.Shows(line.x, line.x)) {
            continue;
        }
        if (line.kind == OverLine::Kind::OtherEnd) {
            m_canvas.Painter().setPen(QPen(m_canvas[line.color], 1, Qt::DashLine));
            m_canvas.Painter().drawLine(QPointF(line.x, top), QPointF(line.x, top + height));
        } else {
            const double width = line.kind == OverLine::Kind::Now ? 2 : 1;
            m_canvas.Fill(QRectF(line.x - width / 2, top, width, height), line.color);
        }
    }
}

void TimelinePainter::PaintHours(std::optional<SimTime> cursor) const {
    const DateTime begin = m_content.run->conditions.StartDate;
    const TextWidth widthOf = [&](const QString& text) { return m_canvas.WidthOf(text); };
    const double top = m_rows.hours.top();
    const double height = m_rows.hours.height();
    std::vector<PlacedText> chips;
    if (cursor) {
        const std::vector<ChipLine> line{
            {.x = m_scale.X(*cursor), .text = ToQString(TimeOfDayText(begin + cursor->Seconds()))}};
        if (const auto chip = PlaceChips(line, m_scale, widthOf).front()) {
            chips.push_back(*chip);
            PaintCursor(*cursor, *chip);
        }
    }
    for (const OverLine& line : m_layout.Lines()) {
        const bool isCovered =
            line.chip && std::ranges::any_of(chips, [&](const PlacedText& other) {
                return other.Touches(*line.chip, 1);
            });
        if (!line.chip || isCovered) {
            continue;
        }
        chips.push_back(*line.chip);
        const QRectF chip(line.chip->left, top, line.chip->width, height);
        if (line.kind == OverLine::Kind::Now) {
            m_canvas.Fill(chip, Color::Now);
            m_canvas.Text(chip.left() + kGap, top, height, line.chip->text, Color::NowText);
        } else {
            m_canvas.Fill(chip, Color::Background);
            m_canvas.Frame(chip, line.color, 1,
                           line.kind == OverLine::Kind::OtherEnd ? Qt::DashLine : Qt::SolidLine);
            m_canvas.Text(chip.left() + kGap, top, height, line.chip->text, line.color);
        }
    }
    for (const PlacedText& hour : HourLabels(begin, m_scale, chips, widthOf)) {
        m_canvas.Text(hour.left, top, height, hour.text, Color::Weak);
    }
}

void TimelinePainter::PaintCursor(SimTime cursor, const PlacedText& chip) const {
    const double x = m_scale.X(cursor);
    m_canvas.Fill(
        QRectF(x, m_rows.hours.bottom(), 1, m_rows.Content().bottom() - m_rows.hours.bottom()),
        Color::Text);
    m_canvas.Fill(QRectF(chip.left, m_rows.hours.top(), chip.width, m_rows.hours.height()),
                  Color::Badge);
    m_canvas.Text(chip.left + kGap, m_rows.hours.top(), m_rows.hours.height(), chip.text,
                  Color::BadgeText);
    const MomentState state = StateAt(*m_content.run, cursor);
    QPainter& painter = m_canvas.Painter();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(m_canvas[Color::Background]);
    const auto dot = [&](double y, Color color) {
        constexpr double kRadius = 3;
        painter.setBrush(m_canvas[color]);
        painter.drawEllipse(QPointF(x, y), kRadius, kRadius);
    };
    for (const Resource resource : kResources) {
        if (const StockField& field = m_layout.Stocks()[resource]; !field.rect.isEmpty()) {
            dot(field.Y(state.stock[resource].ToDouble()), LookOf(resource).symbolColor);
        }
    }
    if (const EnergyField& energy = m_layout.Energy(); !energy.rect.isEmpty()) {
        dot(energy.Y(static_cast<double>(state.point.EnergieProduktion)), Color::EnergyCurve);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void TimelinePainter::PaintColumns(std::optional<SimTime> moment, Color ground) const {
    const QRectF& plot = m_rows.plot;
    const double top = m_rows.days.top();
    const double left = m_rows.days.left();
    const double height = plot.bottom() - top;
    m_canvas.Fill(QRectF(left, top, plot.left() - left, height), ground);
    m_canvas.Fill(QRectF(plot.right(), top, m_rows.days.right() - plot.right(), height), ground);
    m_canvas.Fill(QRectF(plot.left() - 1, m_rows.nights.top(), 1,
                         m_rows.Content().bottom() - m_rows.nights.top()),
                  Color::LineStrong);
    PaintRowNames();
    PaintFieldNames(moment);
}

void TimelinePainter::PaintRowNames() const {
    const double left = m_rows.days.left();
    const double top = m_rows.days.top();
    const double name = left + kNameMargin;
    const RunTrace& run = *m_content.run;
    m_canvas.Text(name, top, m_rows.days.height(),
                  MonthText(run.conditions.StartDate + static_cast<std::int64_t>(m_scale.first)),
                  Color::Weak);
    m_canvas.Sign(name, m_rows.nights.top(), m_rows.nights.height(), Symbol::Sleep,
                  Color::NightText);
    m_canvas.Text(name + kSymbolSide + kGap, m_rows.nights.top(), m_rows.nights.height(),
                  QStringLiteral("Schlaf"), Color::Text);
    for (std::size_t i = 0; i < kLaneNames.size(); ++i) {
        const QRectF& lane = m_rows.lanes[i];
        m_canvas.Fill(QRectF(left, lane.bottom() - 1, m_rows.plot.left() - left, 1), Color::Line);
        m_canvas.Text(name, lane.top(), lane.height(), QString::fromUtf8(kLaneNames[i]),
                      Color::Text);
    }
    m_canvas.Text(name, m_rows.waits.top(), m_rows.waits.height(), QString::fromUtf8(kWaitsName),
                  Color::Text);
}

void TimelinePainter::PaintFieldNames(std::optional<SimTime> moment) const {
    const RunTrace& run = *m_content.run;
    const std::optional<HistoryPoint> point =
        moment ? std::optional(PointAt(run.curve, *moment)) : std::nullopt;
    for (const Resource resource : kResources) {
        const WaitLook look = LookOf(resource);
        PaintFieldName(m_rows.stocks[resource], look.symbol, look.symbolColor,
                       ToQString(kResourceNames[resource]),
                       point ? ToQString(RateText(point->ProStunde[resource])) : QString(),
                       Color::Weak);
        const StockField& field = m_layout.Stocks()[resource];
        PaintFigures(field.rect, field.scale, field.figures);
    }
    PaintFieldName(m_rows.energy, Symbol::Energy, Color::Energy, QString::fromUtf8(kEnergyName),
                   point ? ToQString(FactorText(*point)) : QString(), Color::Deficit);
    const EnergyField& energy = m_layout.Energy();
    PaintFigures(energy.rect, energy.scale, energy.figures);
}

void TimelinePainter::PaintFieldName(const QRectF& field, Symbol symbol, Color color,
                                     const QString& name, const QString& below,
                                     Color belowColor) const {
    if (field.isEmpty()) {
        return;
    }
    const double left = field.left() + kNameMargin;
    const double line = m_canvas.Line();
    const bool two = m_rows.secondLine && !below.isEmpty();
    const double top = field.center().y() - (two ? line : line / 2);
    m_canvas.Sign(left, top, line, symbol, color);
    m_canvas.Text(left + kSymbolSide + kGap, top, line, name, Color::Text);
    if (two) {
        m_canvas.Text(left + kSymbolSide + kGap, top + line, line, below, belowColor);
    }
}

void TimelinePainter::PaintFigures(const QRectF& field, const ValueScale& scale,
                                   const std::vector<double>& figures) const {
    const double line = m_canvas.Line();
    for (const double figure : figures) {
        const double top = field.top() + scale.Down(figure, field.height()) - line / 2;
        m_canvas.Text(m_rows.plot.right() + kGap, top, line, FigureText(figure), Color::Weak);
    }
}

}  // namespace tarvelin
