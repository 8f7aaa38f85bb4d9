// Figures of the heavy laser.
#include "model/cSchwererLaser.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 6000, .Kristall = 2000, .Deuterium = 0};
constexpr std::array kBedarf{Stufenbedarf{ItemId::Werft, 4}, Stufenbedarf{ItemId::LaserTech, 6},
                             Stufenbedarf{ItemId::ENTech, 3}};

}  // namespace

cSchwererLaser::cSchwererLaser(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::sLasers, "Schwerer Laser Nr: ", kStueckpreis, kBedarf) {}

}  // namespace tarvelin
