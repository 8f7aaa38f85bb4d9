// What a plan is worth to a search.
#pragma once

#include <compare>

#include "model/SimTime.h"
#include "util/Integers.h"

namespace tarvelin {

/// The fewer the better, the duration first.
struct Wertung {
    /// Seconds until the last finish, the clock of the run at its end.
    Long Dauer = 0;
    int Sitzungen = 0;
    /// When the last order that a night held back could have started without: the closer to the
    /// night's begin, the closer a plan is to gaining a night.
    SimTime Wach;

    friend auto operator<=>(const Wertung&, const Wertung&) = default;
};

}  // namespace tarvelin
