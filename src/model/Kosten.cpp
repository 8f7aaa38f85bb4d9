// The laws by which costs grow.
#include "model/Kosten.h"

#include <cmath>

#include "model/Stufentabelle.h"

namespace tarvelin {

namespace {

const Stufentabelle kDoppelt([](Long stufe) { return std::pow(2.0, static_cast<double>(stufe)); });
const Stufentabelle kAnderthalb([](Long stufe) {
    return std::pow(1.5, static_cast<double>(stufe) + 1.0);
});
const Stufentabelle kEinsKommaSechs([](Long stufe) {
    return std::pow(1.6, static_cast<double>(stufe) + 1.0);
});

double Faktor(Wachstum nach, Long stufe) {
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
