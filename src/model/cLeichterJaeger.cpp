// Figures of the light fighter.
#include "model/cLeichterJaeger.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 3000, .Kristall = 1000, .Deuterium = 0};
constexpr Stufenbedarfe kBedarf{{{ItemId::Werft, 1}, {ItemId::VerbTech, 1}}};

}  // namespace

cLeichterJaeger::cLeichterJaeger(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::LJs, {"Leichter Jäger Nr: "}, kStueckpreis, kBedarf) {}

}  // namespace tarvelin
