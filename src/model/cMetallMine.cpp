// Figures of the metal mine.
#include "model/cMetallMine.h"

namespace tarvelin {

namespace {

constexpr Kosten kBasis{.Metall = 40, .Kristall = 10, .Deuterium = 0};

}  // namespace

cMetallMine::cMetallMine(GlobaleVariablen& globale)
    : cMine(globale,
            {.Id = ItemId::MetMine,
             .Zeile = {"Metallmine: "},
             .Preise = {kBasis, Wachstum::HochAnderthalb},
             .InBilanz = true},
            {.A = 30, .B = 20, .C = 10}, globale.Metall, globale.MetallProStunde) {}

}  // namespace tarvelin
