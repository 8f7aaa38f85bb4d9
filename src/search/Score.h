// What a plan is worth to a search.
#pragma once

#include <compare>

#include "model/SimTime.h"
#include "util/Integers.h"

namespace tarvelin {

/// The fewer the better, the duration first.
struct Score {
    /// Seconds until the last finish, the clock of the run at its end.
    Long duration = 0;
    int sittings = 0;
    /// When the last order that a night held back could have started without: the closer to the
    /// night's begin, the closer a plan is to gaining a night.
    SimTime sleepFreeStart;

    friend auto operator<=>(const Score&, const Score&) = default;
};

}  // namespace tarvelin
