// Build time of the units of the shipyard.
#include "model/cWerfteinheit.h"

#include "model/Bauzeitfaktor.h"

namespace tarvelin {

// The order of the operations is part of the result. Robot factories play no part.
double cWerfteinheit::GetUpgradeTime() const {
    constexpr double kRohstoffeJeStunde = 5000;
    const GlobaleVariablen& g = Globale();
    const Kosten& preis = NaechsterPreis();
    return (1.0 / g.Speedfaktor) * ((preis.Kristall + preis.Metall) / kRohstoffeJeStunde) *
           (2.0 / (1 + g.WerftStufe())) * HalbierFaktor(g.HalbierStufe) * kSekundenJeStunde;
}

}  // namespace tarvelin
