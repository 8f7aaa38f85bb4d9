// Figures of the research lab.
#include "model/cForschungslabor.h"

namespace tarvelin {

namespace {

constexpr Kosten kErsteStufe{.Metall = 200, .Kristall = 400, .Deuterium = 200};

}  // namespace

// It can't be raised while research runs, nor started without deuterium production, whatever the
// stock. Its rows never name a reason, even when the order had to wait.
cForschungslabor::cForschungslabor(GlobaleVariablen& globale)
    : cGebaeude(globale, {.Id = ItemId::Folab,
                          .Zeile = {.Name = "Forschungslabor: ", .MitGrund = false},
                          .Preise = {kErsteStufe, Wachstum::Doppelt},
                          .Braucht = {.OhneDeuteriumProduktion = Sperre::Vorerst},
                          .Bedient = {.FreiAb = &globale.ForschungFertigZeit,
                                      .Upgrading = &globale.FolabUpgrading}}) {}

}  // namespace tarvelin
