// The steps of the state.
#include "model/Transitions.h"

#include <algorithm>
#include <cstdint>

#include "model/Cost.h"
#include "model/Energy.h"
#include "model/Mines.h"

namespace tarvelin {

namespace {

/// What the mines yield, for all moments until the next balance.
void RefreshProduktion(GameState& state, const RunConditions& conditions) {
    ForEachResource([&](Resource resource) {
        state.ProStunde[resource] =
            GetProduktion(resource, state.Stufe[kMines[resource]], state.MinenProdfaktor[resource],
                          state.ProdFaktor, conditions);
        state.perSecond[resource] = state.ProStunde[resource].ToDouble() / kSecondsPerHour;
    });
}

/// What a rate yields: divided in floating point, half to even at the fourth decimal.
FixedPoint MineYield(FixedPoint perHour, Long seconds) {
    constexpr std::uint64_t kHour = 3600;
    constexpr std::uint64_t kSafe = kHour << 38U;
    const FixedPoint hourly = perHour * seconds;
    // The floating point quotient is off by less than 3 parts in 2^53, here 0.0001 at most. Only at
    // a half, or for more than that, can this be seen; all else is told by whole numbers.
    const auto n = static_cast<std::uint64_t>(hourly.Raw());
    const std::uint64_t half = 2 * n + kHour;
    const std::uint64_t whole = half / (2 * kHour);
    if (n < kSafe && half != whole * (2 * kHour)) [[likely]] {
        return FixedPoint::FromRaw(static_cast<std::int64_t>(whole));
    }
    return FixedPoint::FromDouble(hourly.ToDouble() / kSecondsPerHour);
}

}  // namespace

GameState InitialState(const RunConditions& conditions) {
    constexpr FixedPoint kInitialStock = FixedPoint::FromWhole(500);
    GameState state;
    state.stock = {{kInitialStock, kInitialStock, FixedPoint()}};
    RefreshProduktion(state, conditions);
    return state;
}

void UpgradeStart(const ItemRow& row, GameState& state) {
    const Cost& cost = CostOf(row.item, state.Stufe[row.item]);
    const PerResource<FixedPoint>& deduction = StockDeduction(row.item, state.Stufe[row.item]);
    state.Upgrading[row.traits.serves] = true;
    double spent = state.VerbauteRessourcen;
    ForEachResource([&](Resource resource) {
        state.stock[resource] = state.stock[resource] - deduction[resource];
        spent += cost[resource];
    });
    state.VerbauteRessourcen = HalfEvenLong(spent);
}

void UpgradeFinished(const ItemRow& row, GameState& state) {
    state.Upgrading[row.traits.serves] = false;
    state.Stufe[row.item] = Saturate<Byte>(state.Stufe[row.item] + 1);
    state.balanceStale |= row.traits.energyRole != EnergyRole::None;
}

void SetProdfaktor(const MineFactors& factors, GameState& state) {
    state.MinenProdfaktor = factors;
    state.balanceStale = true;
}

void EnergieBilanz(GameState& state, const RunConditions& conditions) {
    if (!state.balanceStale) {
        return;
    }
    state.balanceStale = false;
    double need = 0;
    ForEachResource([&](Resource resource) {
        need += GetEnergieVerbrauch(resource, state.Stufe[kMines[resource]],
                                    state.MinenProdfaktor[resource]);
    });
    state.EnergieVerbrauch = HalfEvenLong(need);
    state.EnergieProduktion =
        HalfEvenLong((SatelliteProduction(state.Stufe[ItemId::Solsats], conditions.Temperatur) +
                      PowerPlantProduction(state.Stufe[ItemId::SKW]))
                         .ToDouble());
    constexpr FixedPoint kFull = FixedPoint::FromWhole(1);
    state.ProdFaktor =
        state.EnergieVerbrauch == 0
            ? kFull
            : std::min(kFull, FixedPoint::FromDouble(static_cast<double>(state.EnergieProduktion) /
                                                     state.EnergieVerbrauch));
    RefreshProduktion(state, conditions);
}

void VergeheZeit(Long SecondsToPass, GameState& state) {
    if (SecondsToPass == 0) {
        return;
    }
    ForEachResource([&](Resource resource) {
        state.stock[resource] =
            state.stock[resource] + MineYield(state.ProStunde[resource], SecondsToPass);
    });
    state.secsgone = state.secsgone + SecondsToPass;
}

}  // namespace tarvelin
