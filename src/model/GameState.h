// All that changes in a run.
#pragma once

#include <cstddef>
#include <type_traits>

#include "model/ItemId.h"
#include "model/Resource.h"
#include "model/Shortage.h"
#include "model/SimTime.h"
#include "util/FixedPoint.h"

namespace tarvelin {

/// A value: a copy of it is the whole game at that moment. Stocks are units, rates units per hour
/// with the speed factor included, times seconds, energy a whole number without a unit of time.
struct GameState {
    /// The clock of the run.
    SimTime secsgone;
    /// From when on each order queue is free again; 0 for none.
    PerQueue<SimTime> FertigZeit{};

    PerResource<FixedPoint> stock{};
    PerResource<FixedPoint> ProStunde{};
    /// The same rates, as waits are worked out from them.
    PerResource<double> perSecond{};
    MineFactors MinenProdfaktor = kFullFactors;

    /// Share of the mines' energy need that is met, at most 1. Cold satellites can make it
    /// negative.
    FixedPoint ProdFaktor;
    Long EnergieProduktion = 0;
    Long EnergieVerbrauch = 0;
    /// Whether a level of the mines, power plant or satellites or a factor of the mines has changed
    /// since the balance was struck.
    bool balanceStale = true;

    /// Whether the facility that serves a queue is being raised, from the start of the order to its
    /// finish.
    PerQueue<bool> Upgrading{};

    /// Sum of the resources spent on all started orders, from which the points come.
    Long VerbauteRessourcen = 0;

    /// Level reached by each building and research, number finished of each unit.
    PerItem<Byte> Stufe{};

    /// What each item lacked when it was last asked with its gate open.
    PerItem<Shortage> VerzoegerungsGrund{};

    /// Whether the run went beyond the clock, so that its last moments aren't their own.
    [[nodiscard]] bool IsAtEndOfClock() const { return secsgone == SimTime::Last(); }

    friend bool operator==(const GameState&, const GameState&) = default;
};

static_assert(std::is_trivially_copyable_v<GameState>, "a run can be copied before each order");
inline constexpr std::size_t kMaxStateSize = 1300;
static_assert(sizeof(GameState) < kMaxStateSize, "a copy costs next to nothing");

}  // namespace tarvelin
