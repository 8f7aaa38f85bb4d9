// Figures of the small shield dome.
#include "model/cKleineSchildkuppel.h"

namespace tarvelin {

namespace {

constexpr Kosten kStueckpreis{.Metall = 10000, .Kristall = 10000, .Deuterium = 0};
constexpr Stufenbedarfe kBedarf{{{ItemId::Werft, 1}, {ItemId::SchTech, 2}}};

}  // namespace

// Its rows have no number, however many are built.
cKleineSchildkuppel::cKleineSchildkuppel(GlobaleVariablen& globale)
    : cWerfteinheit(globale, ItemId::klSchK, {.Name = "Kleine Schildkuppel", .MitNummer = false},
                    kStueckpreis, kBedarf) {}

}  // namespace tarvelin
