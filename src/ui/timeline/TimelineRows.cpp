// Shares out the height.
#include "ui/timeline/TimelineRows.h"

#include <algorithm>

namespace tarvelin {

namespace {

constexpr double kLegend = 28;
constexpr double kAxisRow = 16;
constexpr double kPicture = kLanePicture;
constexpr double kMargin = 3;
constexpr double kBelowPicture = 2;
constexpr double kBar = 14;
constexpr double kLargeBar = 18;
constexpr double kLargeLane = 52;
constexpr double kWaits = 20;
constexpr double kAboveWaits = 2;
constexpr double kField = 28;
constexpr double kEnergy = 30;
constexpr double kSmallField = 20;
constexpr double kLargeField = 48;
constexpr double kAboveField = 4;
constexpr double kScrollBar = 8;
constexpr double kFields = 4;

/// The heights that can change.
struct Heights {
    double lane = 0;
    double bar = 0;
    double field = 0;
    double energy = 0;
};

Heights Usual(const TimelineSpace& space) {
    const double band = std::max(kPicture, 2 * space.line);
    const double bar = std::max(kBar, space.line);
    const double twoLines = 2 * space.line + 1;
    return {.lane = kMargin + band + kBelowPicture + bar + kMargin,
            .bar = bar,
            .field = std::max(kField, twoLines),
            .energy = std::max(kEnergy, twoLines)};
}

/// Moves up to `most` of `spare` to a height that `count` rows have.
void Grow(double& height, double most, double count, double& spare) {
    const double more = std::clamp(spare / count, 0.0, std::max(0.0, most - height));
    height += more;
    spare -= more * count;
}

double WholeHeight(const Heights& heights, const TimelineSpace& space) {
    constexpr double kAxisRows = 3;
    constexpr double kLanes = kLaneQueues.size();
    return (space.legend ? kLegend : 0) + kAxisRows * std::max(kAxisRow, space.line + 1) +
           kLanes * heights.lane + kAboveWaits + std::max(kWaits, space.line + 4) +
           kFields * kAboveField + (kFields - 1) * heights.field + heights.energy +
           (space.scrollBar ? kAboveField + kScrollBar : 0);
}

Heights Share(const TimelineSpace& space) {
    constexpr double kLanes = kLaneQueues.size();
    Heights heights = Usual(space);
    double spare = space.rect.height() - WholeHeight(heights, space);
    if (spare >= 0) {
        const double ahead = heights.energy - heights.field;
        double more = 0;
        Grow(more, kLargeField - heights.energy, kFields, spare);
        heights.energy += more;
        heights.field += more;
        Grow(heights.field, heights.field + ahead, kFields - 1, spare);
        const double lane = heights.lane;
        Grow(heights.lane, kLargeLane, kLanes, spare);
        heights.bar = std::max(heights.bar, std::min(kLargeBar, heights.bar + heights.lane - lane));
        heights.field += spare / (kFields - 1);
        return heights;
    }
    // Pictures are worth more than high fields, as long as a line of text has room.
    const double least = space.line + 1;
    heights.field = std::max(least, heights.field + spare / kFields);
    heights.energy = heights.field;
    if (WholeHeight(heights, space) > space.rect.height()) {
        heights.lane = kMargin + heights.bar + kMargin;
        heights.field = std::max(kSmallField, space.line + 4);
        heights.energy = heights.field;
        const double left = space.rect.height() - WholeHeight(heights, space);
        heights.field += std::max(0.0, left / kFields);
        heights.energy = heights.field;
    }
    return heights;
}

/// A lane that is too low for a picture has its bar alone.
void SetLaneParts(const Heights& heights, TimelineRows& rows) {
    const bool pictures = heights.lane >= kMargin + kPicture + heights.bar;
    rows.bar = heights.bar;
    rows.barTop = heights.lane - kMargin - heights.bar;
    rows.picture = pictures ? kPicture : 0;
    rows.pictureTop = pictures ? rows.barTop - kBelowPicture - kPicture : rows.barTop;
}

}  // namespace

QRectF TimelineRows::PlotPart(const QRectF& row) const {
    return row.isEmpty() ? QRectF() : QRectF(plot.left(), row.top(), plot.width(), row.height());
}

QRectF TimelineRows::Content() const {
    double bottom = waits.bottom();
    for (const QRectF& field : {stocks[Resource::Metall], stocks[Resource::Kristall],
                                stocks[Resource::Deuterium], energy}) {
        bottom = field.isEmpty() ? bottom : field.bottom();
    }
    return {plot.left(), lanes.front().top(), plot.width(), bottom - lanes.front().top()};
}

TimelineRows TimelineRows::In(const TimelineSpace& space) {
    const Heights heights = Share(space);
    TimelineRows rows;
    double top = space.rect.top();
    const auto next = [&](double height) {
        const QRectF row(space.rect.left(), top, space.rect.width(), height);
        top += height;
        return row;
    };
    const double axisRow = std::max(kAxisRow, space.line + 1);
    rows.legend = space.legend ? next(kLegend) : QRectF();
    rows.days = next(axisRow);
    rows.hours = next(axisRow);
    rows.nights = next(axisRow);
    std::ranges::generate(rows.lanes, [&] { return next(heights.lane); });
    SetLaneParts(heights, rows);
    top += kAboveWaits;
    rows.waits = next(std::max(kWaits, space.line + 4));
    const double foot = space.rect.bottom() - (space.scrollBar ? kScrollBar + kAboveField : 0.0);
    const auto field = [&](double height) {
        constexpr double kRounded = 0.5;
        if (top + kAboveField + height > foot + kRounded) {
            return QRectF();
        }
        top += kAboveField;
        return next(height);
    };
    for (const Resource resource : kResources) {
        rows.stocks[resource] = field(heights.field);
    }
    rows.energy = field(heights.energy);
    rows.line = space.line;
    rows.secondLine = heights.field >= 2 * space.line;
    rows.plot =
        QRectF(space.rect.left() + space.names, space.rect.top(),
               std::max(1.0, space.rect.width() - space.names - space.scales), space.rect.height());
    if (space.scrollBar) {
        rows.scrollBar = QRectF(rows.plot.left(), space.rect.bottom() - kScrollBar,
                                rows.plot.width(), kScrollBar);
    }
    return rows;
}

}  // namespace tarvelin
