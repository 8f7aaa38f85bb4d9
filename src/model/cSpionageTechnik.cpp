// Figures of espionage technology.
#include "model/cSpionageTechnik.h"

namespace tarvelin {

namespace {

constexpr Kosten kErsteStufe{.Metall = 200, .Kristall = 1000, .Deuterium = 200};

}  // namespace

cSpionageTechnik::cSpionageTechnik(GlobaleVariablen& globale)
    : cForschung(globale, ItemId::SpioTech, {"Spionagetechnik: "}, kErsteStufe, {}) {}

}  // namespace tarvelin
