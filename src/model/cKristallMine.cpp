// Figures of the crystal mine.
#include "model/cKristallMine.h"

namespace tarvelin {

namespace {

constexpr Kosten kBasis{.Metall = 30, .Kristall = 15, .Deuterium = 0};

}  // namespace

cKristallMine::cKristallMine(GlobaleVariablen& globale)
    : cMine(globale,
            {.Id = ItemId::KrisMine,
             .Zeile = {"Kristallmine: "},
             .Preise = {kBasis, Wachstum::HochEinsKommaSechs},
             .InBilanz = true},
            {.A = 20, .B = 10, .C = 10}, globale.Kristall, globale.KristallProStunde) {}

}  // namespace tarvelin
