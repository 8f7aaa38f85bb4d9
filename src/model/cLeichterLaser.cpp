// Figures of the light laser.
#include "model/cLeichterLaser.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 1500, .Kristall = 500, .Deuterium = 0};
constexpr std::array kBedarf{Stufenbedarf{ItemId::Werft, 2}, Stufenbedarf{ItemId::LaserTech, 3}};

}  // namespace

cLeichterLaser::cLeichterLaser(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::lLasers, "Leichter Laser Nr: ", kStueckpreis, kBedarf) {}

}  // namespace tarvelin
