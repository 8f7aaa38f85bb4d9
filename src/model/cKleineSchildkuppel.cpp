// Figures of the small shield dome.
#include "model/cKleineSchildkuppel.h"

namespace tarvelin {

namespace {

constexpr std::string_view kName = "Kleine Schildkuppel";
constexpr Kosten kStueckpreis{.Metall = 10000, .Kristall = 10000, .Deuterium = 0};
constexpr std::array kBedarf{Stufenbedarf{ItemId::Werft, 1}, Stufenbedarf{ItemId::SchTech, 2}};

}  // namespace

cKleineSchildkuppel::cKleineSchildkuppel(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::klSchK, kName, kStueckpreis, kBedarf) {}

Bauzeittext cKleineSchildkuppel::ZeilenText() const {
    return {.Name = kName};
}

}  // namespace tarvelin
