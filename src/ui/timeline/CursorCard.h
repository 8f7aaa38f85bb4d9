// The card beside the cursor: what goes on at its moment.
#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "simulation/RunTrace.h"
#include "ui/timeline/TimelineCanvas.h"

namespace tarvelin {

/// A line of the card. Words stand at their places, empty ones aren't there.
struct CardLine {
    /// "Baut", "Wartet", a resource; weak where a value follows in words.
    QString caption{};
    /// What the caption is about, behind the captions.
    QString words{};
    /// Bold, ends in the middle.
    QString figure{};
    /// At the right end.
    QString right{};
    Color rightColor = Color::Weak;
    std::optional<Symbol> symbol{};
    Color symbolColor = Color::Text;
};

/// "Fr 04.12. 12:00:00 nach 2 T 18:00", what is built, what waits for how much and until when, the
/// stocks with their rates, energy as supply and need with the factor.
[[nodiscard]] std::vector<CardLine> CardLines(const RunTrace& run, SimTime moment);

/// 12 pixels beside `x`, on the side with more room; its foot stands on the plot's. Never outside
/// of `bounds`.
void PaintCard(const TimelineCanvas& canvas, const std::vector<CardLine>& lines, double x,
               const QRectF& plot, const QRectF& bounds);

}  // namespace tarvelin
