// Figures of laser technology.
#include "model/cLasertechnik.h"

namespace tarvelin {

namespace {

constexpr Kosten kErsteStufe{.Metall = 200, .Kristall = 100, .Deuterium = 0};
constexpr Stufenbedarfe kBedarf{{{ItemId::ENTech, 2}}};

}  // namespace

cLasertechnik::cLasertechnik(GlobaleVariablen& globale)
    : cForschung(globale, ItemId::LaserTech, {"Lasertechnik: "}, kErsteStufe, kBedarf) {}

}  // namespace tarvelin
