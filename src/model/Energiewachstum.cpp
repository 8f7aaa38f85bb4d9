// Powers of 1.1.
#include "model/Energiewachstum.h"

#include <cmath>

#include "model/Stufentabelle.h"

namespace tarvelin {

namespace {

const Stufentabelle kPotenzen([](Long stufe) { return std::pow(1.1, static_cast<double>(stufe)); });

}  // namespace

double HochEinsKommaEins(Long stufe) {
    return kPotenzen(stufe);
}

}  // namespace tarvelin
