// Figures of the solar satellite.
#include "model/cSolarsatellit.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 0, .Kristall = 2000, .Deuterium = 500};
constexpr Stufenbedarfe kBedarf{{{ItemId::Werft, 1}}};
constexpr double kGradJeEnergie = 4;
constexpr double kEnergieBeiNullGrad = 20;

}  // namespace

cSolarsatellit::cSolarsatellit(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::Solsats, {"Solarsatellit Nr: "}, kStueckpreis, kBedarf,
                    BeimAusbau::Ja) {}

// The floor acts on the product, so that fractions of the satellites add up before it.
Festkomma cSolarsatellit::GetProduktion(Long ExterneStufe) const {
    const Long anzahl = ExterneStufe == kEigeneStufe ? Stufe() : ExterneStufe;
    const double jeSatellit = Globale().Temperatur / kGradJeEnergie + kEnergieBeiNullGrad;
    return Festkomma::AusGanzzahl(Rundung::floor(jeSatellit * anzahl));
}

}  // namespace tarvelin
