// Powers of 1.1.
#include "model/Energiewachstum.h"

#include <cmath>

#include "model/Kosten.h"

namespace tarvelin {

double HochEinsKommaEins(Long stufe) {
    static const Stufentabelle<double> kPotenzen(
        [](Long s) { return std::pow(1.1, static_cast<double>(s)); });
    return kPotenzen(stufe);
}

}  // namespace tarvelin
