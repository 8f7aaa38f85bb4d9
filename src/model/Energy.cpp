// Formulas of the power plant and the satellites.
#include "model/Energy.h"

#include <array>
#include <cmath>
#include <limits>

namespace tarvelin {

namespace {

using Powers = std::array<double, std::numeric_limits<Byte>::max() + std::size_t{1}>;

Powers AllPowers() noexcept {
    Powers powers{};
    for (std::size_t level = 0; level < powers.size(); ++level) {
        powers[level] = std::pow(1.1, static_cast<double>(level));
    }
    return powers;
}

// Made before main, as the prices are and for the same reason.
const Powers kPowers = AllPowers();

FixedPoint PowerPlantProduction(Byte level) {
    constexpr double kEnergyPerLevel = 20;
    return FixedPoint::FromWhole(
        Rounding::Floor(kEnergyPerLevel * level * OnePointOneToThe(level)));
}

// Rounded down as a whole, not per satellite.
FixedPoint SatelliteProduction(Byte count, Integer temperature) {
    constexpr double kDegreesPerEnergy = 4;
    constexpr double kEnergyAtZeroDegrees = 20;
    const double perSatellite = temperature / kDegreesPerEnergy + kEnergyAtZeroDegrees;
    return FixedPoint::FromWhole(Rounding::Floor(perSatellite * count));
}

}  // namespace

double OnePointOneToThe(Byte level) {
    return kPowers[level];
}

FixedPoint GetProduktion(ItemId source, Byte ExterneStufe, Integer Temperatur) {
    switch (source) {
        case ItemId::SKW:
            return PowerPlantProduction(ExterneStufe);
        case ItemId::Solsats:
            return SatelliteProduction(ExterneStufe, Temperatur);
        default:
            return {};
    }
}

}  // namespace tarvelin
