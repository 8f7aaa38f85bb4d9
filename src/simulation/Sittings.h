// How often a player has to sit down.
#pragma once

#include "model/SimTime.h"

namespace tarvelin {

/// How long a player sits at a stretch: all starts within so many seconds of the first one.
inline constexpr Long kSittingLength = 600;

/// Counts the sittings of starts that come in their order.
struct SittingCounter {
    int count = 0;
    /// Of the last sitting.
    SimTime begin;

    void Add(SimTime start) {
        if (count == 0 || start - begin > kSittingLength) {
            ++count;
            begin = start;
        }
    }
};

}  // namespace tarvelin
