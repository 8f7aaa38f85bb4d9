// The research lab, which opens the research items and makes them faster.
#pragma once

#include "model/cGebaeude.h"

namespace tarvelin {

class cForschungslabor final : public cGebaeude {
  public:
    explicit cForschungslabor(GlobaleVariablen& globale);

    /// From the start of an order to its finish.
    [[nodiscard]] bool IsUpgrading() const { return Globale().FolabUpgrading; }

    /// It can't be raised while research runs.
    [[nodiscard]] Moment FreiAb() const override { return Globale().ForschungFertigZeit; }

  private:
    [[nodiscard]] Kosten Preis(Long stufe) const override;
    [[nodiscard]] Sperre Gates() const override;
    void NachInit() override { Globale().FolabUpgrading = false; }
    void NachStart() override { Globale().FolabUpgrading = true; }
    void NachFinish() override { Globale().FolabUpgrading = false; }
    /// Its rows never name a reason, even when the order had to wait.
    [[nodiscard]] Verzoegerung ZeilenGrund() const override {
        return {.Grund = Verzoegerung::Art::OhneAngabe};
    }
};

}  // namespace tarvelin
