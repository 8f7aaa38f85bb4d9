// Figures of the light laser.
#include "model/cLeichterLaser.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 1500, .Kristall = 500, .Deuterium = 0};
constexpr Stufenbedarfe kBedarf{{{ItemId::Werft, 2}, {ItemId::LaserTech, 3}}};

}  // namespace

cLeichterLaser::cLeichterLaser(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::lLasers, {"Leichter Laser Nr: "}, kStueckpreis, kBedarf) {}

}  // namespace tarvelin
