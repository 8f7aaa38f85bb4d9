// All that changes the state of a run: starts and finishes of orders, the energy balance and the
// passing of time.
#pragma once

#include "model/GameState.h"
#include "model/ItemTable.h"
#include "model/RunConditions.h"

namespace tarvelin {

/// The state before the first event: start stocks, clock at 0, all items at level 0.
[[nodiscard]] GameState InitialState(const RunConditions& conditions);

/// Deducts the price of the next step from the stocks, even below 0, and adds it to what was
/// spent. A facility then counts as being upgraded.
void UpgradeStart(const ItemRow& item, GameState& state);

/// Raises the level, and ends the upgrade of a facility.
void UpgradeFinished(const ItemRow& item, GameState& state);

/// Seconds that the next step takes, without the click buffer.
[[nodiscard]] double GetUpgradeTime(const ItemRow& item, const GameState& state,
                                    const RunConditions& conditions);

/// Works out the energy's need, supply and factor from the levels, and with them the mines' rates.
/// Does nothing unless the balance is stale, as most events of a run leave it as it is.
void EnergieBilanz(GameState& state, const RunConditions& conditions);

/// Adds what a mine yields in this time to the stock; negative seconds take it back. Every call
/// rounds to four decimals, so the result depends on how time is split into calls.
void Passtime(Resource mine, Long SecondsToPass, GameState& state);

/// Lets the mines produce and moves the clock, by the click buffer too if `AddKlickPuffer`.
/// Negative seconds take both back.
void VergeheZeit(Long SecondsToPass, bool AddKlickPuffer, GameState& state,
                 const RunConditions& conditions);

}  // namespace tarvelin
