// The shipyard, which builds satellite, ships and defences and makes them faster.
#pragma once

#include "model/cGebaeude.h"

namespace tarvelin {

class cRaumschiffWerft final : public cGebaeude {
  public:
    explicit cRaumschiffWerft(GlobaleVariablen& globale);

    /// From the start of an order to its finish.
    [[nodiscard]] bool IsUpgrading() const { return Globale().WerftUpgrading; }
};

}  // namespace tarvelin
