// The two laws by which costs grow with the level.
#include "model/Kosten.h"

#include <cmath>

namespace tarvelin {

Kosten WachsendeKosten(const Kosten& basis, double wachstum, Long stufe) {
    const double faktor = std::pow(wachstum, static_cast<double>(stufe) + 1.0);
    return {std::trunc(basis.Metall * faktor), std::trunc(basis.Kristall * faktor),
            std::trunc(basis.Deuterium * faktor)};
}

Kosten VerdoppelndeKosten(const Kosten& basis, Long stufe) {
    static const Stufentabelle<double> kZweierpotenzen(
        [](Long s) { return std::pow(2.0, static_cast<double>(s)); });
    const double faktor = kZweierpotenzen(stufe);
    return {basis.Metall * faktor, basis.Kristall * faktor, basis.Deuterium * faktor};
}

}  // namespace tarvelin
