// What happens to the state of a run: its beginning, starts and finishes, the energy balance and
// the passing of time.
#pragma once

#include "model/GameState.h"
#include "model/ItemTable.h"
#include "model/RunConditions.h"

namespace tarvelin {

/// The state before the first event: start stocks, clock at 0, all items at level 0.
[[nodiscard]] GameState InitialState(const RunConditions& conditions);

/// Takes the costs of the next step off the stocks, unchecked, and adds them to what was spent.
void UpgradeStart(const ItemRow& row, GameState& state);

/// Raises the level.
void UpgradeFinished(const ItemRow& row, GameState& state);

/// Takes effect with the next balance.
void SetProdfaktor(const MineFactors& factors, GameState& state);

/// Works out need, supply and factor of the energy from the levels as they stand, and from the
/// factor what the mines yield. Does nothing unless the balance is out of date: most events of a
/// run leave it as it is.
void EnergieBilanz(GameState& state, const RunConditions& conditions);

/// Lets the mines produce and the clock go on by `SecondsToPass`, which may be negative: the mines
/// then give back what they had yielded. Every call rounds, so the result depends on how time is
/// cut into calls.
void VergeheZeit(Long SecondsToPass, GameState& state);

}  // namespace tarvelin
