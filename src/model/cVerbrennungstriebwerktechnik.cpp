// Figures of combustion drive technology.
#include "model/cVerbrennungstriebwerktechnik.h"

namespace tarvelin {

namespace {

constexpr Kosten kErsteStufe{.Metall = 400, .Kristall = 0, .Deuterium = 600};
constexpr Stufenbedarfe kBedarf{{{ItemId::Folab, 1}, {ItemId::ENTech, 1}}};

}  // namespace

cVerbrennungstriebwerktechnik::cVerbrennungstriebwerktechnik(GlobaleVariablen& globale)
    : cForschung(globale, ItemId::VerbTech, {"Verb.Triebwerk: "}, kErsteStufe, kBedarf) {}

}  // namespace tarvelin
