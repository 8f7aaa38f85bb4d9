// Figures of the robot factory.
#include "model/cRoboterFabrik.h"

namespace tarvelin {

cRoboterFabrik::cRoboterFabrik(GlobaleVariablen& globale)
    : cGebaeude(globale, ItemId::Robo, "Roboterfabrik: ") {}

Kosten cRoboterFabrik::Preis(Long stufe) const {
    return VerdoppelndeKosten({.Metall = 400, .Kristall = 120, .Deuterium = 200}, stufe);
}

/// Without deuterium production it can't start, whatever the stock.
Sperre cRoboterFabrik::Gates() const {
    return FehltDeuteriumProduktion() ? Sperre::Voraussetzung : Sperre::Offen;
}

}  // namespace tarvelin
