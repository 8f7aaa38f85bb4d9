// Powers of 1.1.
#include "model/Energiewachstum.h"

#include <cmath>

#include "model/Stufentabelle.h"

namespace tarvelin {

double HochEinsKommaEins(Long stufe) {
    static const Stufentabelle kPotenzen(
        [](Long s) { return std::pow(1.1, static_cast<double>(s)); });
    return kPotenzen(stufe);
}

}  // namespace tarvelin
