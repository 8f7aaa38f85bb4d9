// How long the steps of each family take.
#pragma once

#include "model/GameState.h"
#include "model/Resource.h"
#include "model/RunConditions.h"

namespace tarvelin {

inline constexpr double kSekundenJeStunde = 3600;

/// Seconds that a step of this price takes with the factories and labs as they stand. Deuterium
/// costs no time.
using Dauerformel = double(const Kosten& preis, const Spielstand& stand,
                           const Startbedingungen& bedingungen);

/// Buildings. Robot factories make them faster.
Dauerformel Gebaeudedauer;
/// The deuterium mine alone: whole seconds, half to even.
Dauerformel Deuteriumminendauer;
/// Satellite, ships and defences. The shipyard makes them faster, robot factories play no part.
Dauerformel Einheitendauer;
/// Research. The lab makes it faster, robot factories play no part.
Dauerformel Forschungsdauer;

}  // namespace tarvelin
