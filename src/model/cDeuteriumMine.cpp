// Figures of the deuterium mine.
#include "model/cDeuteriumMine.h"

namespace tarvelin {

namespace {

constexpr Kosten kBasis{.Metall = 150, .Kristall = 50, .Deuterium = 0};

}  // namespace

cDeuteriumMine::cDeuteriumMine(GlobaleVariablen& globale)
    : cMine(globale,
            {.Id = ItemId::DeutMine,
             .Zeile = {"Deuteriummine: "},
             .Preise = {kBasis, Wachstum::HochAnderthalb},
             .InBilanz = true},
            {.A = 10, .B = 0, .C = 20}, globale.Deuterium, globale.DeuteriumProStunde) {}

double cDeuteriumMine::GetUpgradeTime() const {
    return HalfEvenLong(cMine::GetUpgradeTime());
}

/// The colder the planet, the more deuterium: 1.28 at 0 degrees, 0 at 640, negative above.
double cDeuteriumMine::Temperaturfaktor() const {
    constexpr double kBeiNullGrad = 1.28;
    constexpr double kJeGrad = -0.002;
    return kBeiNullGrad + Globale().Temperatur * kJeGrad;
}

}  // namespace tarvelin
