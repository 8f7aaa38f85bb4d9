// Figures of the espionage probe.
#include "model/cSpionagesonde.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 0, .Kristall = 1000, .Deuterium = 0};
constexpr Stufenbedarfe kBedarf{{{ItemId::Werft, 3}, {ItemId::SpioTech, 2}, {ItemId::VerbTech, 3}}};

}  // namespace

cSpionagesonde::cSpionagesonde(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::Spios, {"Spionagesonde Nr: "}, kStueckpreis, kBedarf) {}

}  // namespace tarvelin
