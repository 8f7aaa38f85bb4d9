// Figures of the small transporter.
#include "model/cKleinerTransporter.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 2000, .Kristall = 2000, .Deuterium = 0};
constexpr Stufenbedarfe kBedarf{{{ItemId::Werft, 2}, {ItemId::VerbTech, 2}}};

}  // namespace

cKleinerTransporter::cKleinerTransporter(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::KTs, {"Kl. Transporter Nr: "}, kStueckpreis, kBedarf) {}

}  // namespace tarvelin
