// The score of a list in a search.
#pragma once

#include <compare>

#include "model/SimTime.h"
#include "util/Integers.h"

namespace tarvelin {

/// Less is better, the duration first.
struct Score {
    /// Seconds on the run's clock at its end.
    Long duration = 0;
    int sittings = 0;
    /// When the last order that a sleep window delayed could have started without it. The closer
    /// to the window's start, the less is missing to start before the night.
    SimTime sleepFreeStart;

    friend auto operator<=>(const Score&, const Score&) = default;
};

}  // namespace tarvelin
