// Figures of the crystal mine.
#include "model/cKristallMine.h"

namespace tarvelin {

namespace {

constexpr Kosten kBasis{.Metall = 30, .Kristall = 15, .Deuterium = 0};
constexpr double kWachstum = 1.6;

}  // namespace

cKristallMine::cKristallMine(GlobaleVariablen& globale)
    : cMine(globale, ItemId::KrisMine, "Kristallmine: ", {.A = 20, .B = 10, .C = 10},
            globale.Kristall, globale.KristallProStunde) {}

Kosten cKristallMine::Preis(Long stufe) const {
    static const Stufentabelle<Kosten> kPreise(
        [](Long s) { return WachsendeKosten(kBasis, kWachstum, s); });
    return kPreise(stufe);
}

}  // namespace tarvelin
