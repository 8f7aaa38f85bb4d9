// Figures and formulas of the mines.
#include "model/Mines.h"

#include <algorithm>
#include <cmath>

#include "model/Energy.h"

namespace tarvelin {

namespace {

/// The yield per hour at level L is A × L × 1.1^L and the base income B, the need C × L × 1.1^L.
struct Kennzahlen {
    double A = 0;
    double B = 0;
    float C = 0;
};

// clang-format off
constexpr JeRohstoff<Kennzahlen> kKennzahlen{{{
    /* metal     */ {.A = 30, .B = 20, .C = 10},
    /* crystal   */ {.A = 20, .B = 10, .C = 10},
    /* deuterium */ {.A = 10, .B =  0, .C = 20},
}}};
// clang-format on

float AlsAnteil(Byte faktor) {
    constexpr float kZehntel = 10.0F;
    return static_cast<float>(faktor) / kZehntel;
}

/// By which the temperature of the planet changes the yield, but not the base income. The colder,
/// the more deuterium: 1.28 at 0 degrees, 0 at 640, negative above.
double Temperaturfaktor(Rohstoff mine, Integer temperatur) {
    constexpr double kBeiNullGrad = 1.28;
    constexpr double kJeGrad = -0.002;
    return mine == Rohstoff::Deuterium ? kBeiNullGrad + temperatur * kJeGrad : 1;
}

}  // namespace

Rohstoff RohstoffDer(ItemId mine) {
    return static_cast<Rohstoff>(std::ranges::find(kMinen, mine) - kMinen.begin());
}

double Energiebedarf(Rohstoff mine, Byte stufe, Byte faktor) {
    // The first two products are rounded to single precision, the last one isn't.
    const float bedarf = AlsAnteil(faktor) * kKennzahlen[mine].C * static_cast<float>(stufe);
    return std::trunc(static_cast<double>(bedarf) * HochEinsKommaEins(stufe));
}

double EnergiebedarfDerListe(Rohstoff mine, Byte stufe, Byte faktor) {
    return std::trunc(static_cast<double>(AlsAnteil(faktor)) *
                      static_cast<double>(kKennzahlen[mine].C) * stufe * HochEinsKommaEins(stufe));
}

// The order of the operations is part of the result. The base income stands inside the floor,
// untouched by the energy balance and the mine's factor; the speed factor doubles what the floor
// leaves.
FixedPoint Minenertrag(Rohstoff mine, Byte stufe, Byte faktor, FixedPoint prodFaktor,
                       const Startbedingungen& bedingungen) {
    const double ertrag = ((kKennzahlen[mine].A * stufe) * HochEinsKommaEins(stufe) *
                           Temperaturfaktor(mine, bedingungen.Temperatur)) *
                          prodFaktor.ToDouble();
    const auto proStunde =
        Rounding::Floor(static_cast<double>(AlsAnteil(faktor)) * ertrag + kKennzahlen[mine].B);
    return FixedPoint::FromWhole(proStunde) * bedingungen.Speedfaktor;
}

}  // namespace tarvelin
