// Lays out the parts of a timeline.
#include "ui/timeline/TimelineLayout.h"

#include <algorithm>

#include "simulation/RunTexts.h"
#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// Below that bars and pictures bear no words.
constexpr double kNamesFromPerHour = 9;
/// More chosen rows than these are a selection of much, not of single orders; their pictures are
/// framed, and don't push all others away.
constexpr std::size_t kMostChosenApart = 12;

/// Or 3 pixels beside it.
bool IsAt(const QPointF& position, const QRectF& rect) {
    constexpr double kBeside = 3;
    return rect.adjusted(-kBeside, 0, kBeside, 0).contains(position);
}

}  // namespace

double WholePlanScale(const TimelineContent& content, const TimelineRows& rows) {
    // For the chip of the end.
    constexpr double kBehindEnd = 40;
    return std::max(1.0, rows.plot.width() - kBehindEnd) / content.EndSecond();
}

TimelineLayout::TimelineLayout(const TimelineContent& content, const TimelineRows& rows,
                               const TimeScale& scale, const TextWidths& widths)
    : m_content(content),
      m_rows(rows),
      m_scale(scale),
      m_waits(WaitPieces(*content.run, scale, widths.usual)),
      m_daysApart(DayStep(scale.perSecond, widths.bold)) {
    const TextWidth& widthOf = widths.usual;
    const RunConditions& conditions = content.run->conditions;
    LayOutLines(widthOf);
    m_days = DayLabels(conditions.StartDate, scale, widths.bold);
    m_nights = NightBands(conditions.Schlafzeiten, conditions.StartDate, scale, widthOf);
    PerResource<QRectF> fields;
    for (const Resource resource : kResources) {
        fields[resource] = rows.PlotPart(rows.stocks[resource]);
    }
    m_stocks = StockFieldsOf(content, fields, scale, rows.line, widthOf);
    m_energy = EnergyFieldOf(*content.run, rows.PlotPart(rows.energy), scale, rows.line, widthOf);
    m_proposedNights = NightBands(content.proposedNights, conditions.StartDate, scale, widthOf);
    // Where a night of the plan is, its label stands.
    for (NightBand& proposed : m_proposedNights) {
        if (std::ranges::any_of(m_nights, [&](const NightBand& night) {
                return night.from < proposed.until && proposed.from < night.until;
            })) {
            proposed.label.clear();
        }
    }
    for (std::size_t i = 0; i < m_lanes.size(); ++i) {
        LayOutLane(i, widthOf);
    }
    for (const StartEvent& start : content.run->starts) {
        if (start.order.kind == Order::Kind::Production) {
            m_productions.push_back(&start);
        }
    }
}

void TimelineLayout::LayOutLines(const TextWidth& widthOf) {
    const RunTrace& run = *m_content.run;
    std::vector<ChipLine> chips;
    const auto add = [&](OverLine::Kind kind, double second, Color color, const QString& text) {
        m_lines.push_back({.kind = kind, .x = m_scale.X(second), .color = color, .chip = {}});
        chips.push_back({.x = m_lines.back().x, .text = text});
    };
    if (const auto present = m_content.Present()) {
        add(OverLine::Kind::Now, present->Seconds(), Color::Now,
            QStringLiteral("jetzt ") + ToQString(TimeOfDayText(*m_content.now)));
    }
    if (!run.starts.empty()) {
        add(OverLine::Kind::End, run.Duration().Seconds(), Color::Text, QStringLiteral("Ende"));
    }
    for (const DashedRun& other : m_content.others) {
        add(OverLine::Kind::OtherEnd, other.run.Duration().Seconds(), other.color,
            other.color == Color::Gain ? QStringLiteral("Ende mit ") + other.name
                                       : QStringLiteral("Ende ") + other.name);
    }
    const auto placed = PlaceChips(chips, m_scale, widthOf);
    for (std::size_t i = 0; i < placed.size(); ++i) {
        m_lines[i].chip = placed[i];
    }
}

void TimelineLayout::LayOutLane(std::size_t index, const TextWidth& widthOf) {
    LaneLayout& lane = m_lanes[index];
    lane.rect = m_rows.lanes[index];
    const RunTrace& run = *m_content.run;
    const bool hasNames = m_content.names && m_scale.PerHour() >= kNamesFromPerHour;
    const bool chosenApart = m_content.chosenRows.size() <= kMostChosenApart;
    constexpr double kWidestWords = 300;
    for (const StartEvent& start : run.starts) {
        if (start.order.kind == Order::Kind::Item && start.order.queue == kLaneQueues[index]) {
            lane.starts.push_back(&start);
        }
    }
    // Through a closed gate an order can start before the row above it.
    std::ranges::stable_sort(lane.starts, {}, &StartEvent::start);
    for (const StartEvent* const event : lane.starts) {
        const StartEvent& start = *event;
        LaneOrder order{.row = start.row,
                        .start = m_scale.X(start.start),
                        .finish = m_scale.X(start.finish),
                        .apart = (chosenApart && m_content.chosenRows.contains(start.row)) ||
                                 m_content.nextRow == start.row ||
                                 m_content.refusedRow == start.row,
                        .name = {},
                        .moment = {}};
        if (hasNames && m_scale.Shows(order.start - kWidestWords, order.finish + kWidestWords)) {
            order.name = ToQString(OrderText(start));
            order.moment = ToQString(TimeOfDayText(run.conditions.WallClock(start.start)));
        }
        lane.orders.push_back(std::move(order));
    }
    if (m_rows.picture > 0) {
        lane.marks = MarksOf(lane.orders, m_rows.picture);
    }
    if (hasNames) {
        LaneRoom room{.left = m_scale.left, .right = m_scale.right, .lines = {}};
        for (const OverLine& line : m_lines) {
            room.lines.push_back(line.x);
        }
        lane.texts = TextsOf(lane.orders, lane.marks, room, widthOf);
    }
}

QRectF TimelineLayout::PictureOf(const LaneLayout& lane, const LaneMark& mark) const {
    return {mark.left, lane.rect.top() + m_rows.pictureTop, m_rows.picture, m_rows.picture};
}

QRectF TimelineLayout::BarOf(const LaneLayout& lane, const LaneOrder& order) const {
    constexpr double kNarrowest = 2;
    return {order.start, lane.rect.top() + m_rows.barTop,
            std::max(kNarrowest, order.finish - order.start), m_rows.bar};
}

std::optional<std::size_t> TimelineLayout::RowInLane(const LaneLayout& lane,
                                                     const QPointF& position) const {
    // What is painted last lies on top.
    const auto mark =
        std::find_if(lane.marks.rbegin(), lane.marks.rend(), [&](const LaneMark& candidate) {
            QRectF picture = PictureOf(lane, candidate);
            picture.setRight(candidate.right);
            return picture.contains(position);
        });
    if (mark != lane.marks.rend()) {
        return lane.orders[mark->first].row;
    }
    const auto order = std::find_if(
        lane.orders.rbegin(), lane.orders.rend(),
        [&](const LaneOrder& candidate) { return IsAt(position, BarOf(lane, candidate)); });
    return order == lane.orders.rend() ? std::nullopt : std::optional(order->row);
}

std::optional<std::size_t> TimelineLayout::RowAt(const QPointF& position) const {
    if (!m_rows.plot.contains(position)) {
        return std::nullopt;
    }
    for (const LaneLayout& lane : m_lanes) {
        if (const auto row =
                lane.rect.contains(position) ? RowInLane(lane, position) : std::nullopt) {
            return row;
        }
    }
    for (const WaitPiece& piece : m_waits) {
        if (IsAt(position, QRectF(piece.from, m_rows.waits.top(), piece.until - piece.from,
                                  m_rows.waits.height()))) {
            return piece.row;
        }
    }
    const QRectF content = m_rows.Content();
    for (const StartEvent* const start : m_productions) {
        if (IsAt(position, QRectF(m_scale.X(start->start), content.top(), 0, content.height()))) {
            return start->row;
        }
    }
    return std::nullopt;
}

}  // namespace tarvelin
