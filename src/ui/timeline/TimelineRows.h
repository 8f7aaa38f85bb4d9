// Which row of the timeline lies where.
#pragma once

#include <QRectF>
#include <array>

#include "model/ItemId.h"
#include "model/Resource.h"

namespace tarvelin {

/// The lanes from top to bottom.
inline constexpr std::array kLaneQueues{Queue::Building, Queue::Research, Queue::Shipyard};

/// The side of a lane's pictures, in pixels.
inline constexpr int kLanePicture = 24;

/// What the rows depend on, in pixels.
struct TimelineSpace {
    QRectF rect;
    /// The height of a line of text.
    double line = 0;
    /// The columns at the left and at the right.
    double names = 0;
    double scales = 0;
    /// Whether there is a row for the legend, and a scroll bar below all.
    bool legend = true;
    bool scrollBar = true;
};

/// A rectangle is empty where there is no room for its row. Rows have the whole width, the columns
/// included; only plot and scroll bar lie between them.
struct TimelineRows {
    QRectF plot;
    QRectF legend;
    QRectF days;
    QRectF hours;
    QRectF nights;
    std::array<QRectF, kLaneQueues.size()> lanes;
    QRectF waits;
    PerResource<QRectF> stocks;
    QRectF energy;
    QRectF scrollBar;
    /// In a lane, from its top. Without pictures the bar alone is there.
    double picture = 0;
    double pictureTop = 0;
    double barTop = 0;
    double bar = 0;
    double line = 0;
    /// Whether the names of the fields have a second line.
    bool secondLine = false;

    /// What of a row is in the plot; empty for a row that isn't there.
    [[nodiscard]] QRectF PlotPart(const QRectF& row) const;
    /// From the first lane to the last field.
    [[nodiscard]] QRectF Content() const;

    /// Gives more height to the fields, then to the lanes, then again to the fields; with less the
    /// fields shrink, then the lanes lose their pictures, then fields are left out from below.
    [[nodiscard]] static TimelineRows In(const TimelineSpace& space);
};

}  // namespace tarvelin
