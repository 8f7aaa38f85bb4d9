// Figures of the heavy laser.
#include "model/cSchwererLaser.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 6000, .Kristall = 2000, .Deuterium = 0};
constexpr Stufenbedarfe kBedarf{{{ItemId::Werft, 4}, {ItemId::LaserTech, 6}, {ItemId::ENTech, 3}}};

}  // namespace

cSchwererLaser::cSchwererLaser(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::sLasers, {"Schwerer Laser Nr: "}, kStueckpreis, kBedarf) {}

}  // namespace tarvelin
