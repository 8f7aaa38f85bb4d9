// Figures of shield technology.
#include "model/cSchildtechnik.h"

namespace tarvelin {

namespace {

constexpr Kosten kErsteStufe{.Metall = 200, .Kristall = 600, .Deuterium = 0};
constexpr Stufenbedarfe kBedarf{{{ItemId::Folab, 6}, {ItemId::ENTech, 3}}};

}  // namespace

cSchildtechnik::cSchildtechnik(GlobaleVariablen& globale)
    : cForschung(globale, ItemId::SchTech, {"SchildTechnik: "}, kErsteStufe, kBedarf) {}

}  // namespace tarvelin
