// A picture of a whole plan for others: its timeline, all orders, how it ends.
#pragma once

#include <QFont>
#include <QPixmap>
#include <QSize>
#include <vector>

#include "ui/timeline/PosterTexts.h"
#include "ui/timeline/TimelineCanvas.h"
#include "ui/timeline/TimelineContent.h"
#include "ui/timeline/TimelineRows.h"

namespace tarvelin {

class PlanPoster {
  public:
    struct Parts {
        /// Without folders and suffix; may be empty.
        QString planName;
        QPixmap icon;
        PerItem<QPixmap> pictures;
        /// Its family is used.
        QFont font;
    };

    /// The run must have been played to its end.
    PlanPoster(const RunTrace& run, const Parts& parts);

    /// 1200 wide, as high as needed.
    [[nodiscard]] QSize Size() const;
    /// Always in the light colors.
    void Paint(QPainter& painter) const;

  private:
    void PaintHead(const TimelineCanvas& canvas) const;
    void PaintTimeline(const TimelineCanvas& canvas) const;
    void PaintLegendLine(const TimelineCanvas& canvas) const;
    void PaintTable(const TimelineCanvas& canvas) const;
    void PaintTableHead(const TimelineCanvas& canvas, double left) const;
    void PaintRow(const TimelineCanvas& canvas, const PosterRow& row, const QRectF& place,
                  bool withDay) const;
    void PaintEnd(const TimelineCanvas& canvas) const;
    void PaintLevels(const TimelineCanvas& canvas, double top) const;
    void PaintStocks(const TimelineCanvas& canvas, double top) const;
    [[nodiscard]] TimelineLook LookWith(int pixels, bool bold = false) const;
    [[nodiscard]] std::size_t RowsPerColumn() const;
    [[nodiscard]] double EndTop() const;
    [[nodiscard]] std::vector<ItemId> LevelsReached() const;

    TimelineContent m_content;
    Parts m_parts;
    /// For timeline and table, and for the levels at the end.
    PerItem<QPixmap> m_small;
    PerItem<QPixmap> m_large;
    std::vector<PosterRow> m_rows;
    TimelineRows m_timeline;
};

}  // namespace tarvelin
