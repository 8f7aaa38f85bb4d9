// Figures and formulas of the mines.
#include "model/Mines.h"

#include <algorithm>
#include <cmath>

#include "model/Energy.h"
#include "model/UpgradeTime.h"

namespace tarvelin {

namespace {

/// Per hour. At level L a mine yields `yield` × L × 1.1^L on top of the base income, and needs
/// `energy` × L × 1.1^L.
struct MineConstants {
    double yield = 0;
    double baseIncome = 0;
    float energy = 0;
};

// clang-format off
constexpr PerResource<MineConstants> kMineConstants{{{
    /* metal     */ {.yield = 30, .baseIncome = 20, .energy = 10},
    /* crystal   */ {.yield = 20, .baseIncome = 10, .energy = 10},
    /* deuterium */ {.yield = 10, .baseIncome =  0, .energy = 20},
}}};
// clang-format on

float ToShare(Byte factor) {
    constexpr float kTenth = 10.0F;
    return static_cast<float>(factor) / kTenth;
}

/// The effect of the planet's temperature on the yield, which leaves the base income alone. The
/// colder, the more deuterium: 1.28 at 0 degrees, 0 at 640, negative above.
double TemperatureFactor(Resource mine, Integer temperature) {
    constexpr double kAtZeroDegrees = 1.28;
    constexpr double kPerDegree = -0.002;
    return mine == Resource::Deuterium ? kAtZeroDegrees + temperature * kPerDegree : 1;
}

}  // namespace

Resource ResourceOf(ItemId mine) {
    return static_cast<Resource>(std::ranges::find(kMines, mine) - kMines.begin());
}

double GetEnergieVerbrauch(Resource mine, const GameState& state) {
    const Byte level = state.GetStufe(kMines[mine]);
    // The first two products are rounded to single precision, the last one isn't.
    const float need = ToShare(state.MinenProdfaktor[mine]) * kMineConstants[mine].energy *
                       static_cast<float>(level);
    return std::trunc(static_cast<double>(need) * OnePointOneToThe(level));
}

double GetEnergieVerbrauch(Resource mine, Byte ExterneStufe, Byte externerProduktionsfaktor) {
    return std::trunc(static_cast<double>(ToShare(externerProduktionsfaktor)) *
                      static_cast<double>(kMineConstants[mine].energy) * ExterneStufe *
                      OnePointOneToThe(ExterneStufe));
}

// The sequence of the operations is part of the result. The base income is inside the floor, but
// neither energy nor the mine's factor touch it; the speed factor multiplies what the floor leaves.
FixedPoint GetProduktion(Resource mine, const GameState& state, const RunConditions& conditions) {
    const Byte level = state.GetStufe(kMines[mine]);
    const double production = ((kMineConstants[mine].yield * level) * OnePointOneToThe(level) *
                               TemperatureFactor(mine, conditions.Temperatur)) *
                              state.ProdFaktor.ToDouble();
    const auto share = static_cast<double>(ToShare(state.MinenProdfaktor[mine]));
    const auto perHour = Rounding::Floor(share * production + kMineConstants[mine].baseIncome);
    return FixedPoint::FromWhole(perHour) * conditions.Speedfaktor;
}

void RefreshProduktion(Resource mine, GameState& state, const RunConditions& conditions) {
    state.ProStunde[mine] = GetProduktion(mine, state, conditions);
    state.perSecond[mine] = state.ProStunde[mine].ToDouble() / kSecondsPerHour;
}

void SetProdfaktor(Resource mine, Byte theFaktor, GameState& state) {
    state.MinenProdfaktor[mine] = theFaktor;
    state.balanceStale = true;
}

}  // namespace tarvelin
