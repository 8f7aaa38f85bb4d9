// Figures of the shipyard.
#include "model/cRaumschiffWerft.h"

namespace tarvelin {

cRaumschiffWerft::cRaumschiffWerft(GlobaleVariablen& globale)
    : cGebaeude(globale, ItemId::Werft, "Raumschiffwerft: ") {}

Kosten cRaumschiffWerft::Preis(Long stufe) const {
    return VerdoppelndeKosten({.Metall = 400, .Kristall = 200, .Deuterium = 100}, stufe);
}

}  // namespace tarvelin
