// The shipyard, which builds satellite, ships and defences and makes them faster.
#pragma once

#include "model/cGebaeude.h"

namespace tarvelin {

class cRaumschiffWerft final : public cGebaeude {
  public:
    explicit cRaumschiffWerft(GlobaleVariablen& globale);

    /// From the start of an order to its finish.
    [[nodiscard]] bool IsUpgrading() const { return Globale().WerftUpgrading; }

    /// It can't be raised while a ship or defence is being built.
    [[nodiscard]] Moment FreiAb() const override { return Globale().WerftFertigZeit; }

  private:
    [[nodiscard]] Kosten Preis(Long stufe) const override;
    void NachInit() override { Globale().WerftUpgrading = false; }
    void NachStart() override { Globale().WerftUpgrading = true; }
    void NachFinish() override { Globale().WerftUpgrading = false; }
};

}  // namespace tarvelin
