// The deuterium mine.
#pragma once

#include "model/cMine.h"

namespace tarvelin {

class cDeuteriumMine final : public cMine {
  public:
    explicit cDeuteriumMine(GlobaleVariablen& globale);

    /// Whole seconds, half to even, where the other buildings keep the fraction.
    [[nodiscard]] double GetUpgradeTime() const override;

  private:
    [[nodiscard]] double Temperaturfaktor() const override;
};

}  // namespace tarvelin
