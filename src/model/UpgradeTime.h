// How long the steps of each family of items take.
#pragma once

#include "model/GameState.h"
#include "model/Resource.h"
#include "model/RunConditions.h"

namespace tarvelin {

inline constexpr double kSecondsPerHour = 3600;

/// Seconds that a step of this price takes with the facilities as they stand. Deuterium costs no
/// time.
using UpgradeTimeFormula = double(const Cost& cost, const GameState& state,
                                  const RunConditions& conditions);

/// Buildings. Robot factories make them faster.
UpgradeTimeFormula BuildingTime;
/// The deuterium mine alone: whole seconds, half to even.
UpgradeTimeFormula DeuteriumMineTime;
/// Satellite, ships and defences. The shipyard makes them faster, robot factories play no part.
UpgradeTimeFormula UnitTime;
/// Research. The lab makes it faster, robot factories play no part.
UpgradeTimeFormula ResearchTime;

}  // namespace tarvelin
