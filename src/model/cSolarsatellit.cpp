// Figures of the solar satellite.
#include "model/cSolarsatellit.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 0, .Kristall = 2000, .Deuterium = 500};
constexpr Stufenbedarfe kBedarf{{{ItemId::Werft, 1}}};
constexpr double kGradJeEnergie = 4;
constexpr double kEnergieBeiNullGrad = 20;

}  // namespace

// Unlike the other units it can start while the shipyard is being raised.
cSolarsatellit::cSolarsatellit(GlobaleVariablen& globale)
    : cWerfteinheit(globale, {.Id = ItemId::Solsats,
                              .Zeile = {"Solarsatellit Nr: "},
                              .Preise = {kStueckpreis, Wachstum::Keines},
                              .InBilanz = true,
                              .Braucht = {.Stufen = kBedarf}}) {}

// The floor acts on the product, so that fractions of the satellites add up before it.
Festkomma cSolarsatellit::GetProduktion(Long ExterneStufe) const {
    const Long anzahl = ExterneStufe == kEigeneStufe ? Stufe() : ExterneStufe;
    const double jeSatellit = Globale().Temperatur / kGradJeEnergie + kEnergieBeiNullGrad;
    return Festkomma::AusGanzzahl(Rundung::floor(jeSatellit * anzahl));
}

}  // namespace tarvelin
