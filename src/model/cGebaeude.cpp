// Build time of the buildings.
#include "model/cGebaeude.h"

#include "model/Bauzeitfaktor.h"

namespace tarvelin {

// The order of the operations is part of the result. Deuterium costs no time.
double cGebaeude::GetUpgradeTime() const {
    constexpr double kRohstoffeJeStunde = 2500;
    const GlobaleVariablen& g = Globale();
    const Kosten& preis = NaechsterPreis();
    return (1.0 / g.Speedfaktor) * ((preis.Kristall + preis.Metall) / kRohstoffeJeStunde) *
           (1.0 / (1 + g.RoboterStufe())) * HalbierFaktor(g.HalbierStufe) * kSekundenJeStunde;
}

}  // namespace tarvelin
