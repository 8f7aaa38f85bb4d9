// How often a player has to sit down.
#pragma once

#include "model/SimTime.h"

namespace tarvelin {

/// How long a player sits at a stretch: all starts within so many seconds of the first one.
inline constexpr Long kSitzung = 600;

/// Counts the sittings of starts that come in their order.
struct Sitzungszaehler {
    int Zahl = 0;
    /// Of the last sitting.
    SimTime Beginn;

    void Nimm(SimTime start) {
        if (Zahl == 0 || start - Beginn > kSitzung) {
            ++Zahl;
            Beginn = start;
        }
    }
};

}  // namespace tarvelin
