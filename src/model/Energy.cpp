// Power plant and satellites.
#include "model/Energy.h"

#include <array>
#include <cmath>
#include <limits>

namespace tarvelin {

namespace {

using Potenzen = std::array<double, std::numeric_limits<Byte>::max() + std::size_t{1}>;

Potenzen AllePotenzen() noexcept {
    Potenzen potenzen{};
    for (std::size_t stufe = 0; stufe < potenzen.size(); ++stufe) {
        potenzen[stufe] = std::pow(1.1, static_cast<double>(stufe));
    }
    return potenzen;
}

const Potenzen kPotenzen = AllePotenzen();

}  // namespace

double HochEinsKommaEins(Byte stufe) {
    return kPotenzen[stufe];
}

FixedPoint Kraftwerksertrag(Byte stufe) {
    constexpr double kEnergieJeStufe = 20;
    return FixedPoint::FromWhole(
        Rounding::Floor(kEnergieJeStufe * stufe * HochEinsKommaEins(stufe)));
}

// The floor acts on the product, so that fractions of the satellites add up before it.
FixedPoint Satellitenertrag(Byte anzahl, Integer temperatur) {
    constexpr double kGradJeEnergie = 4;
    constexpr double kEnergieBeiNullGrad = 20;
    const double jeSatellit = temperatur / kGradJeEnergie + kEnergieBeiNullGrad;
    return FixedPoint::FromWhole(Rounding::Floor(jeSatellit * anzahl));
}

}  // namespace tarvelin
