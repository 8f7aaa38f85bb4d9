// The research lab, which opens the research items and makes them faster.
#pragma once

#include "model/cGebaeude.h"

namespace tarvelin {

class cForschungslabor final : public cGebaeude {
  public:
    explicit cForschungslabor(GlobaleVariablen& globale);

    /// From the start of an order to its finish.
    [[nodiscard]] bool IsUpgrading() const { return Globale().FolabUpgrading; }
};

}  // namespace tarvelin
