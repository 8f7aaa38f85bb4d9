// The three mines: what they yield and what energy they need.
#pragma once

#include "model/GameState.h"
#include "model/ItemId.h"
#include "model/Resource.h"
#include "model/RunConditions.h"
#include "util/FixedPoint.h"

namespace tarvelin {

/// The mine of each resource.
inline constexpr PerResource<ItemId> kMines{{ItemId::MetMine, ItemId::KrisMine, ItemId::DeutMine}};

/// What a mine yields.
[[nodiscard]] Resource ResourceOf(ItemId mine);

/// Energy that the mine of a resource needs in a run, a whole number. Worked out in single
/// precision, as the game does.
[[nodiscard]] double GetEnergieVerbrauch(Resource mine, const GameState& state);

/// The same for the build list, at a given level and factor in tenths. Worked out in double
/// precision, so it can differ by one where the factor isn't full.
[[nodiscard]] double GetEnergieVerbrauch(Resource mine, Byte ExterneStufe,
                                         Byte externerProduktionsfaktor);

/// What the mine yields in an hour, a whole number, with the share of the energy need that is met.
[[nodiscard]] FixedPoint GetProduktion(Resource mine, const GameState& state,
                                       const RunConditions& conditions);

/// Enters what the mine yields into the state; it holds until the next energy balance.
void RefreshProduktion(Resource mine, GameState& state, const RunConditions& conditions);

/// Sets the factor of a mine, in tenths. It takes effect with the next energy balance.
void SetProdfaktor(Resource mine, Byte theFaktor, GameState& state);

}  // namespace tarvelin
