// Figures of the metal mine.
#include "model/cMetallMine.h"

namespace tarvelin {

namespace {

constexpr Kosten kBasis{.Metall = 40, .Kristall = 10, .Deuterium = 0};
constexpr double kWachstum = 1.5;

}  // namespace

cMetallMine::cMetallMine(GlobaleVariablen& globale)
    : cMine(globale, ItemId::MetMine, "Metallmine: ", {.A = 30, .B = 20, .C = 10}, globale.Metall,
            globale.MetallProStunde) {}

Kosten cMetallMine::Preis(Long stufe) const {
    static const Stufentabelle<Kosten> kPreise(
        [](Long s) { return WachsendeKosten(kBasis, kWachstum, s); });
    return kPreise(stufe);
}

}  // namespace tarvelin
