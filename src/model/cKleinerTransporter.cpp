// Figures of the small transporter.
#include "model/cKleinerTransporter.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 2000, .Kristall = 2000, .Deuterium = 0};
constexpr std::array kBedarf{Stufenbedarf{ItemId::Werft, 2}, Stufenbedarf{ItemId::VerbTech, 2}};

}  // namespace

cKleinerTransporter::cKleinerTransporter(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::KTs, "Kl. Transporter Nr: ", kStueckpreis, kBedarf) {}

}  // namespace tarvelin
