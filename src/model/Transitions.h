// What changes the state of a run: its beginning, starts and finishes, the energy balance and the
// passing of time.
#pragma once

#include "model/GameState.h"
#include "model/ItemTable.h"
#include "model/RunConditions.h"

namespace tarvelin {

/// The state before the first event: start stocks, clock at 0, all items at level 0.
[[nodiscard]] GameState InitialState(const RunConditions& conditions);

/// Takes the price of the next step off the stocks, unchecked, and adds it to what was spent.
void UpgradeStart(const ItemRow& item, GameState& state);

/// Raises the level.
void UpgradeFinished(const ItemRow& item, GameState& state);

/// Seconds that the next step takes, without the click buffer.
[[nodiscard]] double GetUpgradeTime(const ItemRow& item, const GameState& state,
                                    const RunConditions& conditions);

/// Works out need, supply and factor of the energy from the levels, and from the factor what the
/// mines yield. Does nothing unless the balance is stale: most events of a run don't touch it.
void EnergieBilanz(GameState& state, const RunConditions& conditions);

/// Adds what a mine yields in so many seconds to its stock, or takes it back where they are
/// negative. Every call rounds to four decimals, so the result depends on how time is cut into
/// calls.
void Passtime(Resource mine, Long SecondsToPass, GameState& state);

/// Lets the mines produce and the clock go on, by the click buffer too if `AddKlickPuffer`.
/// Negative seconds take both back. No time at all changes nothing.
void VergeheZeit(Long SecondsToPass, bool AddKlickPuffer, GameState& state,
                 const RunConditions& conditions);

}  // namespace tarvelin
