// Figures of the espionage probe.
#include "model/cSpionagesonde.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 0, .Kristall = 1000, .Deuterium = 0};
constexpr std::array kBedarf{Stufenbedarf{ItemId::Werft, 3}, Stufenbedarf{ItemId::SpioTech, 2},
                             Stufenbedarf{ItemId::VerbTech, 3}};

}  // namespace

cSpionagesonde::cSpionagesonde(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::Spios, "Spionagesonde Nr: ", kStueckpreis, kBedarf) {}

}  // namespace tarvelin
