// Figures of the robot factory.
#include "model/cRoboterFabrik.h"

namespace tarvelin {

namespace {

constexpr Kosten kErsteStufe{.Metall = 400, .Kristall = 120, .Deuterium = 200};

}  // namespace

// Without deuterium production it can't start, whatever the stock.
cRoboterFabrik::cRoboterFabrik(GlobaleVariablen& globale)
    : cGebaeude(globale, {.Id = ItemId::Robo,
                          .Zeile = {"Roboterfabrik: "},
                          .Preise = {kErsteStufe, Wachstum::Doppelt},
                          .Braucht = {.OhneDeuteriumProduktion = Sperre::Voraussetzung}}) {}

}  // namespace tarvelin
