// Figures of energy technology.
#include "model/cEnergietechnik.h"

namespace tarvelin {

namespace {

constexpr Kosten kErsteStufe{.Metall = 0, .Kristall = 800, .Deuterium = 400};
constexpr Stufenbedarfe kBedarf{{{ItemId::Folab, 1}}};

}  // namespace

cEnergietechnik::cEnergietechnik(GlobaleVariablen& globale)
    : cForschung(globale, ItemId::ENTech, {"Energietechnik: "}, kErsteStufe, kBedarf) {}

}  // namespace tarvelin
