// The laws by which costs grow.
#include "model/Kosten.h"

#include <cmath>

#include "model/Stufentabelle.h"

namespace tarvelin {

namespace {

double Faktor(Wachstum nach, Long stufe) {
    static const Stufentabelle kDoppelt(
        [](Long s) { return std::pow(2.0, static_cast<double>(s)); });
    static const Stufentabelle kAnderthalb(
        [](Long s) { return std::pow(1.5, static_cast<double>(s) + 1.0); });
    static const Stufentabelle kEinsKommaSechs(
        [](Long s) { return std::pow(1.6, static_cast<double>(s) + 1.0); });
    switch (nach) {
        case Wachstum::Keines:
            break;
        case Wachstum::Doppelt:
            return kDoppelt(stufe);
        case Wachstum::HochAnderthalb:
            return kAnderthalb(stufe);
        case Wachstum::HochEinsKommaSechs:
            return kEinsKommaSechs(stufe);
    }
    return 1;
}

}  // namespace

Kosten Preisgesetz::Preis(Long stufe) const {
    if (Nach == Wachstum::Keines) {
        return Basis;
    }
    const double faktor = Faktor(Nach, stufe);
    return {std::trunc(Basis.Metall * faktor), std::trunc(Basis.Kristall * faktor),
            std::trunc(Basis.Deuterium * faktor)};
}

}  // namespace tarvelin
