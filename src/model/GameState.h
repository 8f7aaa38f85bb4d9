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

/// A value: a copy is the whole game at that moment. Stocks are in units, rates in units per hour
/// with the speed factor included; energy is a balance, not a stock.
struct GameState {
    /// The clock of the run.
    SimTime secsgone;
    /// When each order queue becomes free; 0 if it was never used.
    PerQueue<SimTime> FertigZeit{};

    PerResource<FixedPoint> stock{};
    PerResource<FixedPoint> ProStunde{};
    /// The same rates per second, kept because every wait divides by them.
    PerResource<double> perSecond{};
    MineFactors MinenProdfaktor = kFullFactors;

    /// Share of the mines' energy need that is met, at most 1; negative if satellites in the cold
    /// deliver less than nothing.
    FixedPoint ProdFaktor;
    Long EnergieProduktion = 0;
    Long EnergieVerbrauch = 0;
    /// Whether a level or factor has changed that the energy balance depends on.
    bool balanceStale = true;

    /// Whether the facility that serves a queue is being upgraded.
    PerQueue<bool> Upgrading{};

    /// Sum of the resources spent on all started orders, from which the points come.
    Long VerbauteRessourcen = 0;

    /// Level reached by each building and research, number finished of each unit.
    PerItem<Byte> Stufe{};

    /// What the stocks lacked for each item when it was last timed with its gate open.
    PerItem<Shortage> VerzoegerungsGrund{};

    [[nodiscard]] FixedPoint Metall() const { return stock[Resource::Metall]; }
    [[nodiscard]] FixedPoint Kristall() const { return stock[Resource::Kristall]; }
    [[nodiscard]] FixedPoint Deuterium() const { return stock[Resource::Deuterium]; }
    [[nodiscard]] FixedPoint MetallProStunde() const { return ProStunde[Resource::Metall]; }
    [[nodiscard]] FixedPoint KristallProStunde() const { return ProStunde[Resource::Kristall]; }
    [[nodiscard]] FixedPoint DeuteriumProStunde() const { return ProStunde[Resource::Deuterium]; }
    [[nodiscard]] SimTime GebaeudeFertigZeit() const { return FertigZeit[Queue::Building]; }
    [[nodiscard]] SimTime WerftFertigZeit() const { return FertigZeit[Queue::Shipyard]; }
    [[nodiscard]] SimTime ForschungFertigZeit() const { return FertigZeit[Queue::Research]; }
    [[nodiscard]] Byte GetStufe(ItemId item) const { return Stufe[item]; }
    [[nodiscard]] Byte RoboterStufe() const { return GetStufe(ItemId::Robo); }
    [[nodiscard]] Byte WerftStufe() const { return GetStufe(ItemId::Werft); }
    [[nodiscard]] Byte ForschungslaborStufe() const { return GetStufe(ItemId::Folab); }
    /// Whether the facility that serves this queue is being upgraded.
    [[nodiscard]] bool IsUpgrading(Queue served) const { return Upgrading[served]; }

    /// Whether the run outlasted the clock; all later moments then stand at its end.
    [[nodiscard]] bool IsAtEndOfClock() const { return secsgone == SimTime::Last(); }

    friend bool operator==(const GameState&, const GameState&) = default;
};

static_assert(std::is_trivially_copyable_v<GameState>, "a run can be copied before each order");
inline constexpr std::size_t kMaxStateSize = 1300;
static_assert(sizeof(GameState) < kMaxStateSize, "a copy costs next to nothing");

}  // namespace tarvelin
