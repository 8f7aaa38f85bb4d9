// What is given before a run and stays the same throughout.
#pragma once

#include <vector>

#include "model/SimTime.h"
#include "model/cSchlafzeit.h"
#include "util/DateTime.h"

namespace tarvelin {

struct RunConditions {
    /// Speed of the universe: 1 or 2; 0 before the first run.
    Long Speedfaktor = 0;
    /// Of the start planet, in degrees.
    Integer Temperatur = 0;
    /// Seconds that the player allows for each click.
    Long KlickPuffer = 0;
    /// When the universe started: moment 0 of the run's clock.
    DateTime StartDate{};
    /// The sleep windows, in the sequence of the table.
    std::vector<cSchlafzeit> Schlafzeiten{};

    [[nodiscard]] DateTime WallClock(SimTime moment) const { return StartDate + moment.Seconds(); }
};

}  // namespace tarvelin
