// The lane of the waits: which order waits from when to when, and how much of it there is room for.
#pragma once

#include <vector>

#include "simulation/RunTrace.h"
#include "ui/look/WaitLook.h"
#include "ui/timeline/PlacedText.h"
#include "ui/timeline/TimeScale.h"

namespace tarvelin {

/// The rows wait one after the other, each since the start of the one before it.
struct WaitPiece {
    std::size_t row = 0;
    WaitLook look;
    /// The ends in pixels, cut to the plot.
    double from = 0;
    double until = 0;
    /// Where the lines of the hatching begin to count, in pixels, so that they move with the plan.
    double anchor = 0;
    /// "721 Metall für Kleiner Transporter 2", "721 Metall", "721", or nothing.
    QString text;
    /// A text comes with one.
    bool symbol = false;
};

/// In the sequence of the rows, from left to right. Pieces too narrow to be seen are left out.
[[nodiscard]] std::vector<WaitPiece> WaitPieces(const RunTrace& trace, const TimeScale& scale,
                                                const TextWidth& widthOf);

}  // namespace tarvelin
