// Build time of the research items.
#include "model/cForschung.h"

#include "model/Bauzeitfaktor.h"

namespace tarvelin {

// The order of the operations is part of the result. The divisor is 1000 times the lab's level
// plus 1, not 1000 times (level plus 1). Robot factories play no part.
double cForschung::GetUpgradeTime() const {
    const GlobaleVariablen& g = Globale();
    const Kosten& preis = NaechsterPreis();
    const Long divisor = 1000 * g.ForschungslaborStufe() + 1;
    return ((1.0 / g.Speedfaktor) * (preis.Kristall + preis.Metall)) / divisor * kSekundenJeStunde;
}

}  // namespace tarvelin
