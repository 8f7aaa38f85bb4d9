// Figures of the rocket launcher.
#include "model/cRaketenwerfer.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 2000, .Kristall = 0, .Deuterium = 0};
constexpr Stufenbedarfe kBedarf{{{ItemId::Werft, 1}}};

}  // namespace

cRaketenwerfer::cRaketenwerfer(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::Rakws, {"Raketenwerfer Nr: "}, kStueckpreis, kBedarf) {}

}  // namespace tarvelin
