// What the build-time formulas of the families share.
#pragma once

#include <cmath>

#include "util/Ganzzahl.h"

namespace tarvelin {

inline constexpr double kSekundenJeStunde = 3600;

/// 0.5^`halbierStufe`, exactly.
inline double HalbierFaktor(Byte halbierStufe) {
    return halbierStufe == 0 ? 1.0 : std::ldexp(1.0, -halbierStufe);
}

}  // namespace tarvelin
