// Figures of the shipyard.
#include "model/cRaumschiffWerft.h"

namespace tarvelin {

namespace {

constexpr Kosten kErsteStufe{.Metall = 400, .Kristall = 200, .Deuterium = 100};

}  // namespace

// It can't be raised while a ship or defence is being built.
cRaumschiffWerft::cRaumschiffWerft(GlobaleVariablen& globale)
    : cGebaeude(globale, {.Id = ItemId::Werft,
                          .Zeile = {"Raumschiffwerft: "},
                          .Preise = {kErsteStufe, Wachstum::Doppelt},
                          .Bedient = {.FreiAb = &globale.WerftFertigZeit,
                                      .Upgrading = &globale.WerftUpgrading}}) {}

}  // namespace tarvelin
