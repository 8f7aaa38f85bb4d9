// Figures of the solar power plant.
#include "model/cSolarKraftWerk.h"

#include "model/Energiewachstum.h"

namespace tarvelin {

namespace {

constexpr Kosten kBasis{.Metall = 50, .Kristall = 20, .Deuterium = 0};
constexpr double kEnergieJeStufe = 20;

}  // namespace

cSolarKraftWerk::cSolarKraftWerk(GlobaleVariablen& globale)
    : cGebaeude(globale, {.Id = ItemId::SKW,
                          .Zeile = {"Solarkraftwerk: "},
                          .Preise = {kBasis, Wachstum::HochAnderthalb},
                          .InBilanz = true}) {}

Festkomma cSolarKraftWerk::GetProduktion(Long ExterneStufe) const {
    const Long stufe = ExterneStufe == kEigeneStufe ? Stufe() : ExterneStufe;
    return Festkomma::AusGanzzahl(
        Rundung::floor(kEnergieJeStufe * stufe * HochEinsKommaEins(stufe)));
}

}  // namespace tarvelin
