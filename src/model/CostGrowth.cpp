// The growth laws.
#include "model/CostGrowth.h"

#include <cmath>

namespace tarvelin {

double CostFactor(CostGrowth growth, double level) {
    switch (growth) {
        case CostGrowth::None:
            break;
        case CostGrowth::Doubling:
            return std::pow(2.0, level);
        case CostGrowth::OnePointFive:
            return std::pow(1.5, level + 1.0);
        case CostGrowth::OnePointSix:
            return std::pow(1.6, level + 1.0);
    }
    return 1;
}

}  // namespace tarvelin
