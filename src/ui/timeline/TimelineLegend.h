// Which signs the timeline of a run has, and what they mean.
#pragma once

#include <vector>

#include "ui/look/WaitLook.h"
#include "ui/timeline/TimelineCanvas.h"

namespace tarvelin {

struct LegendEntry {
    enum class Sign { Wait, Bar, Deficit, Dashed };

    Sign sign = Sign::Bar;
    /// Of a wait.
    WaitLook look{};
    QString text{};
    /// Of a dashed line.
    Color color = Color::Weak;
};

/// The reasons that the rows of the run waited for, then everything else that there is.
/// `barText` says what a bar is.
[[nodiscard]] std::vector<LegendEntry> LegendOf(const TimelineContent& content,
                                                const QString& barText);

/// Paints the entries, without words if they have no room, and returns where they end.
double PaintLegend(const TimelineCanvas& canvas, const std::vector<LegendEntry>& entries,
                   const QRectF& rect);

}  // namespace tarvelin
