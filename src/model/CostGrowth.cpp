// The laws by which costs grow.
#include "model/CostGrowth.h"

#include <cmath>

namespace tarvelin {

double Kostenfaktor(Wachstum nach, double stufe) {
    switch (nach) {
        case Wachstum::Keines:
            break;
        case Wachstum::Doppelt:
            return std::pow(2.0, stufe);
        case Wachstum::HochAnderthalb:
            return std::pow(1.5, stufe + 1.0);
        case Wachstum::HochEinsKommaSechs:
            return std::pow(1.6, stufe + 1.0);
    }
    return 1;
}

}  // namespace tarvelin
