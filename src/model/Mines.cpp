// Figures and formulas of the mines.
#include "model/Mines.h"

#include <algorithm>
#include <cmath>

#include "model/Energy.h"

namespace tarvelin {

namespace {

/// The yield per hour at level L is A × L × 1.1^L and the base income B, the need C × L × 1.1^L.
struct MineConstants {
    double a = 0;
    double b = 0;
    float c = 0;
};

// clang-format off
constexpr PerResource<MineConstants> kMineConstants{{{
    /* metal     */ {.a = 30, .b = 20, .c = 10},
    /* crystal   */ {.a = 20, .b = 10, .c = 10},
    /* deuterium */ {.a = 10, .b =  0, .c = 20},
}}};
// clang-format on

float ToShare(Byte factor) {
    constexpr float kTenth = 10.0F;
    return static_cast<float>(factor) / kTenth;
}

/// By which the temperature of the planet changes the yield, but not the base income. The colder,
/// the more deuterium: 1.28 at 0 degrees, 0 at 640, negative above.
double TemperatureFactor(Resource mine, Integer temperature) {
    constexpr double kAtZeroDegrees = 1.28;
    constexpr double kPerDegree = -0.002;
    return mine == Resource::Deuterium ? kAtZeroDegrees + temperature * kPerDegree : 1;
}

}  // namespace

Resource ResourceOf(ItemId mine) {
    return static_cast<Resource>(std::ranges::find(kMines, mine) - kMines.begin());
}

double GetEnergieVerbrauch(Resource mine, Byte level, Byte factor) {
    // The first two products are rounded to single precision, the last one isn't.
    const float need = ToShare(factor) * kMineConstants[mine].c * static_cast<float>(level);
    return std::trunc(static_cast<double>(need) * OnePointOneToThe(level));
}

double ListEnergieVerbrauch(Resource mine, Byte level, Byte factor) {
    return std::trunc(static_cast<double>(ToShare(factor)) *
                      static_cast<double>(kMineConstants[mine].c) * level *
                      OnePointOneToThe(level));
}

// The order of the operations is part of the result. The base income stands inside the floor,
// untouched by the energy balance and the mine's factor; the speed factor doubles what the floor
// leaves.
FixedPoint GetProduktion(Resource mine, Byte level, Byte factor, FixedPoint prodFaktor,
                         const RunConditions& conditions) {
    const double production = ((kMineConstants[mine].a * level) * OnePointOneToThe(level) *
                               TemperatureFactor(mine, conditions.Temperatur)) *
                              prodFaktor.ToDouble();
    const auto perHour =
        Rounding::Floor(static_cast<double>(ToShare(factor)) * production + kMineConstants[mine].b);
    return FixedPoint::FromWhole(perHour) * conditions.Speedfaktor;
}

}  // namespace tarvelin
