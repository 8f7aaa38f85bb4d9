// How often a player has to sit down.
#pragma once

#include "model/SimTime.h"

namespace tarvelin {

/// In seconds. Starts no later than this after the first one belong to the same sitting.
inline constexpr Long kSittingLength = 600;

/// Counts the sittings of starts that are added in ascending sequence.
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
