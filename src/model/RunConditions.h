// What is given before a run and doesn't change in it.
#pragma once

#include <vector>

#include "model/SimTime.h"
#include "model/cSchlafzeit.h"
#include "util/DateTime.h"

namespace tarvelin {

/// The world and the player of a run.
struct RunConditions {
    /// Speed of the universe: 1 or 2; 0 before the first run.
    Long Speedfaktor = 0;
    /// Degrees, of the start planet.
    Integer Temperatur = 0;
    /// Seconds that the player gives himself for each click.
    Long KlickPuffer = 0;
    /// When the universe started: the moment 0 of the clock.
    DateTime StartDate{};
    /// The sleep windows, in the order of the table.
    std::vector<cSchlafzeit> Schlafzeiten{};

    [[nodiscard]] DateTime WallClock(SimTime moment) const { return StartDate + moment.Seconds(); }
};

}  // namespace tarvelin
