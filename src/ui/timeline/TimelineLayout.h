// Where everything of a timeline lies: what the painter paints and what the pointer finds.
#pragma once

#include <QRectF>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "ui/timeline/AxisLabels.h"
#include "ui/timeline/FieldCurves.h"
#include "ui/timeline/LaneMarks.h"
#include "ui/timeline/TimeScale.h"
#include "ui/timeline/TimelineContent.h"
#include "ui/timeline/TimelineRows.h"
#include "ui/timeline/WaitPieces.h"

namespace tarvelin {

struct LaneLayout {
    QRectF rect;
    std::vector<LaneOrder> orders;
    /// Which start of the run each order is.
    std::vector<const StartEvent*> starts;
    std::vector<LaneMark> marks;
    std::vector<LaneText> texts;
};

/// A line over all rows.
struct OverLine {
    enum class Kind { Now, End, OtherEnd };

    Kind kind = Kind::End;
    double x = 0;
    Color color = Color::Text;
    /// Nothing where there is no room for it.
    std::optional<PlacedText> chip;
};

/// In pixels per second: the whole content is in the plot, with the chip at its end.
[[nodiscard]] double WholePlanScale(const TimelineContent& content, const TimelineRows& rows);

/// Of one width, zoom and place in the plan. The content must outlive it.
class TimelineLayout {
  public:
    /// The content must have a run.
    TimelineLayout(const TimelineContent& content, const TimelineRows& rows, const TimeScale& scale,
                   const TextWidths& widths);

    [[nodiscard]] const TimelineRows& Rows() const { return m_rows; }
    [[nodiscard]] const TimeScale& Scale() const { return m_scale; }
    [[nodiscard]] const std::array<LaneLayout, kLaneQueues.size()>& Lanes() const {
        return m_lanes;
    }
    [[nodiscard]] const std::vector<WaitPiece>& Waits() const { return m_waits; }
    [[nodiscard]] const std::vector<OverLine>& Lines() const { return m_lines; }
    /// Production rows, by their starts.
    [[nodiscard]] const std::vector<const StartEvent*>& Productions() const {
        return m_productions;
    }
    /// In bold type.
    [[nodiscard]] const std::vector<PlacedText>& Days() const { return m_days; }
    /// Between the midnights that are marked.
    [[nodiscard]] std::int64_t DaysApart() const { return m_daysApart; }
    [[nodiscard]] const std::vector<NightBand>& Nights() const { return m_nights; }
    [[nodiscard]] const std::vector<NightBand>& ProposedNights() const { return m_proposedNights; }

    [[nodiscard]] const PerResource<StockField>& Stocks() const { return m_stocks; }
    [[nodiscard]] const EnergyField& Energy() const { return m_energy; }

    [[nodiscard]] QRectF PictureOf(const LaneLayout& lane, const LaneMark& mark) const;
    /// At least 2 wide.
    [[nodiscard]] QRectF BarOf(const LaneLayout& lane, const LaneOrder& order) const;

    /// The row whose picture is at a point, or else whose bar, wait or mark, or one that is at most
    /// 3 pixels beside it. Nothing in the columns.
    [[nodiscard]] std::optional<std::size_t> RowAt(const QPointF& position) const;

  private:
    void LayOutLines(const TextWidth& widthOf);
    [[nodiscard]] std::optional<std::size_t> RowInLane(const LaneLayout& lane,
                                                       const QPointF& position) const;
    void LayOutLane(std::size_t index, const TextWidth& widthOf);

    const TimelineContent& m_content;
    TimelineRows m_rows;
    TimeScale m_scale;
    std::array<LaneLayout, kLaneQueues.size()> m_lanes;
    std::vector<WaitPiece> m_waits;
    std::vector<OverLine> m_lines;
    std::vector<const StartEvent*> m_productions;
    std::vector<PlacedText> m_days;
    std::int64_t m_daysApart;
    std::vector<NightBand> m_nights;
    std::vector<NightBand> m_proposedNights;
    PerResource<StockField> m_stocks;
    EnergyField m_energy;
};

}  // namespace tarvelin
