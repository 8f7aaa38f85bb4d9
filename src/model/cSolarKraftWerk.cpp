// Figures of the solar power plant.
#include "model/cSolarKraftWerk.h"

#include "model/Energiewachstum.h"

namespace tarvelin {

namespace {

constexpr Kosten kBasis{.Metall = 50, .Kristall = 20, .Deuterium = 0};
constexpr double kWachstum = 1.5;
constexpr double kEnergieJeStufe = 20;

}  // namespace

cSolarKraftWerk::cSolarKraftWerk(GlobaleVariablen& globale)
    : cGebaeude(globale, ItemId::SKW, "Solarkraftwerk: ") {}

Festkomma cSolarKraftWerk::GetProduktion(Long ExterneStufe) const {
    const Long stufe = ExterneStufe == kEigeneStufe ? Stufe() : ExterneStufe;
    return Festkomma::AusGanzzahl(
        Rundung::floor(kEnergieJeStufe * stufe * HochEinsKommaEins(stufe)));
}

Kosten cSolarKraftWerk::Preis(Long stufe) const {
    static const Stufentabelle<Kosten> kPreise(
        [](Long s) { return WachsendeKosten(kBasis, kWachstum, s); });
    return kPreise(stufe);
}

}  // namespace tarvelin
