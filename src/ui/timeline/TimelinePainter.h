// Paints the timeline of a run on any device.
#pragma once

#include <QRectF>
#include <optional>

#include "ui/timeline/TimelineCanvas.h"
#include "ui/timeline/TimelineLayout.h"

namespace tarvelin {

class TimelinePainter {
  public:
    /// All must outlive the painter.
    TimelinePainter(const TimelineCanvas& canvas, const TimelineContent& content,
                    const TimelineLayout& layout)
        : m_canvas(canvas),
          m_content(content),
          m_layout(layout),
          m_rows(layout.Rows()),
          m_scale(layout.Scale()) {}

    /// What is in the plot, without the row of the hours.
    void PaintPlot() const;
    /// Names and scales, over all that reaches beyond the plot. Rates and energy are those of a
    /// moment, if there is one.
    void PaintColumns(std::optional<SimTime> moment, Color ground = Color::Window) const;
    /// Hours with the chips of the lines, and the line at the cursor with its time.
    void PaintHours(std::optional<SimTime> cursor) const;

    /// The space of a timeline in `rect`, with columns as wide as this font needs.
    [[nodiscard]] static TimelineSpace SpaceIn(const QRectF& rect, const QFont& font);

  private:
    void PaintGrounds() const;
    void PaintTint(const QRectF& rect, const QPolygonF& curve, double zero, Color color) const;
    void PaintGrid() const;
    void PaintNights() const;
    void PaintLane(const LaneLayout& lane) const;
    void PaintBars(const LaneLayout& lane) const;
    void PaintMark(const LaneLayout& lane, const LaneMark& mark) const;
    void PaintBadge(const QRectF& picture, const LaneMark& mark) const;
    void PaintTexts(const LaneLayout& lane) const;
    void PaintWaits() const;
    void PaintStocks() const;
    void PaintEnergy() const;
    void PaintProductions() const;
    void PaintLines() const;
    void PaintCursor(SimTime cursor, const PlacedText& chip) const;
    void PaintRowNames() const;
    void PaintFieldNames(std::optional<SimTime> moment) const;
    void PaintFieldName(const QRectF& field, Symbol symbol, Color color, const QString& name,
                        const QString& below, Color belowColor) const;
    void PaintFigures(const QRectF& field, const ValueScale& scale,
                      const std::vector<double>& figures) const;
    [[nodiscard]] bool IsChosen(const LaneLayout& lane, const LaneMark& mark) const;

    const TimelineCanvas& m_canvas;
    const TimelineContent& m_content;
    const TimelineLayout& m_layout;
    const TimelineRows& m_rows;
    const TimeScale& m_scale;
};

}  // namespace tarvelin
