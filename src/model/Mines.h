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

/// The resource that a mine yields.
[[nodiscard]] Resource ResourceOf(ItemId mine);

/// Energy that the mine of a resource needs in a run, a whole number. In single precision, as in
/// the game.
[[nodiscard]] double GetEnergieVerbrauch(Resource mine, const GameState& state);

/// The same for the build list, at a given level and factor in tenths. In double precision, so the
/// two can differ by one below the full factor.
[[nodiscard]] double GetEnergieVerbrauch(Resource mine, Byte ExterneStufe,
                                         Byte externerProduktionsfaktor);

/// What the mine yields per hour, a whole number, at the state's factors for mine and energy.
[[nodiscard]] FixedPoint GetProduktion(Resource mine, const GameState& state,
                                       const RunConditions& conditions);

/// Updates the mine's rates in the state.
void RefreshProduktion(Resource mine, GameState& state, const RunConditions& conditions);

/// Sets the factor of a mine, in tenths. It takes effect with the next energy balance.
void SetProdfaktor(Resource mine, Byte theFaktor, GameState& state);

}  // namespace tarvelin
