// The transitions of a run's state.
#include "model/Transitions.h"

#include <algorithm>
#include <cstdint>

#include "model/Cost.h"
#include "model/Energy.h"
#include "model/Mines.h"

namespace tarvelin {

namespace {

/// What a rate yields: the quotient in floating point, rounded half to even at the fourth decimal.
FixedPoint MineYield(FixedPoint perHour, Long seconds) {
    constexpr std::uint64_t kHour = 3600;
    constexpr std::uint64_t kSafe = kHour << 38U;
    const FixedPoint hourly = perHour * seconds;
    // The floating-point quotient is off by less than 3 parts in 2^53. Below `kSafe` that matters
    // only at an exact half; everywhere else whole numbers give the same result, and faster.
    const auto raw = static_cast<std::uint64_t>(hourly.Raw());
    const std::uint64_t doubled = 2 * raw + kHour;
    const std::uint64_t rounded = doubled / (2 * kHour);
    if (raw < kSafe && doubled != rounded * (2 * kHour)) [[likely]] {
        return FixedPoint::FromRaw(static_cast<std::int64_t>(rounded));
    }
    return FixedPoint::FromDouble(hourly.ToDouble() / kSecondsPerHour);
}

}  // namespace

GameState InitialState(const RunConditions& conditions) {
    constexpr FixedPoint kInitialStock = FixedPoint::FromWhole(500);
    GameState state;
    state.stock = {{kInitialStock, kInitialStock, FixedPoint()}};
    ForEachResource([&](Resource mine) { RefreshProduktion(mine, state, conditions); });
    return state;
}

void UpgradeStart(const ItemRow& item, GameState& state) {
    const Byte level = state.GetStufe(item.item);
    const Cost& cost = CostOf(item.item, level);
    const PerResource<FixedPoint>& deduction = StockDeduction(item.item, level);
    state.Upgrading[item.traits.serves] = true;
    double spent = state.VerbauteRessourcen;
    ForEachResource([&](Resource resource) {
        state.stock[resource] = state.stock[resource] - deduction[resource];
        spent += cost[resource];
    });
    state.VerbauteRessourcen = HalfEvenLong(spent);
}

void UpgradeFinished(const ItemRow& item, GameState& state) {
    state.Upgrading[item.traits.serves] = false;
    state.Stufe[item.item] = Saturate<Byte>(state.GetStufe(item.item) + 1);
    state.balanceStale |= item.traits.energyRole != EnergyRole::None;
}

double GetUpgradeTime(const ItemRow& item, const GameState& state,
                      const RunConditions& conditions) {
    return item.upgradeTime(CostOf(item.item, state.GetStufe(item.item)), state, conditions);
}

void EnergieBilanz(GameState& state, const RunConditions& conditions) {
    if (!state.balanceStale) {
        return;
    }
    state.balanceStale = false;
    double need = 0;
    ForEachResource([&](Resource mine) { need += GetEnergieVerbrauch(mine, state); });
    state.EnergieVerbrauch = HalfEvenLong(need);
    const auto production = [&](ItemId source) {
        return GetProduktion(source, state.GetStufe(source), conditions.Temperatur);
    };
    state.EnergieProduktion =
        HalfEvenLong((production(ItemId::Solsats) + production(ItemId::SKW)).ToDouble());
    constexpr FixedPoint kFull = FixedPoint::FromWhole(1);
    state.ProdFaktor =
        state.EnergieVerbrauch == 0
            ? kFull
            : std::min(kFull, FixedPoint::FromDouble(static_cast<double>(state.EnergieProduktion) /
                                                     state.EnergieVerbrauch));
    ForEachResource([&](Resource mine) { RefreshProduktion(mine, state, conditions); });
}

void Passtime(Resource mine, Long SecondsToPass, GameState& state) {
    state.stock[mine] = state.stock[mine] + MineYield(state.ProStunde[mine], SecondsToPass);
}

void VergeheZeit(Long SecondsToPass, bool AddKlickPuffer, GameState& state,
                 const RunConditions& conditions) {
    const Long seconds =
        AddKlickPuffer ? LongSum(SecondsToPass, conditions.KlickPuffer) : SecondsToPass;
    if (seconds == 0) {
        return;
    }
    ForEachResource([&](Resource mine) { Passtime(mine, seconds, state); });
    state.secsgone = state.secsgone + seconds;
}

}  // namespace tarvelin
