// What happens to the state of a run: its beginning, starts and finishes, the energy balance and
// the passing of time.
#pragma once

#include "model/GameState.h"
#include "model/ItemTable.h"
#include "model/RunConditions.h"

namespace tarvelin {

/// The state before the first event: start stocks, clock at 0, all items at level 0.
[[nodiscard]] Spielstand Anfang(const Startbedingungen& bedingungen);

/// Takes the costs of the next step off the stocks, unchecked, and adds them to what was spent.
void BeginneSchritt(const Itemzeile& zeile, Spielstand& stand);

/// Raises the level.
void BeendeSchritt(const Itemzeile& zeile, Spielstand& stand);

/// Takes effect with the next balance.
void SetzeMinenfaktoren(const Minenfaktoren& faktoren, Spielstand& stand);

/// Works out need, supply and factor of the energy from the levels as they stand, and from the
/// factor what the mines yield. Does nothing unless the balance is out of date: most events of a
/// run leave it as it is.
void EnergieBilanz(Spielstand& stand, const Startbedingungen& bedingungen);

/// Lets the mines produce and the clock go on by `sekunden`, which may be negative: the mines then
/// give back what they had yielded. Every call rounds, so the result depends on how time is cut
/// into calls.
void VergeheZeit(Long sekunden, Spielstand& stand);

}  // namespace tarvelin
