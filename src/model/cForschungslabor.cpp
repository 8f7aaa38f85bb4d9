// Figures of the research lab.
#include "model/cForschungslabor.h"

namespace tarvelin {

cForschungslabor::cForschungslabor(GlobaleVariablen& globale)
    : cGebaeude(globale, ItemId::Folab, "Forschungslabor: ") {}

Kosten cForschungslabor::Preis(Long stufe) const {
    return VerdoppelndeKosten({.Metall = 200, .Kristall = 400, .Deuterium = 200}, stufe);
}

/// Without deuterium production it can't start, whatever the stock.
Sperre cForschungslabor::Gates() const {
    return FehltDeuteriumProduktion() ? Sperre::Vorerst : Sperre::Offen;
}

}  // namespace tarvelin
