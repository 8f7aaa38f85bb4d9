// The solar power plant.
#pragma once

#include "model/cGebaeude.h"

namespace tarvelin {

class cSolarKraftWerk final : public cGebaeude {
  public:
    explicit cSolarKraftWerk(GlobaleVariablen& globale);

    /// Energy that the plant delivers at a level, a whole number.
    [[nodiscard]] Festkomma GetProduktion(Long ExterneStufe = kEigeneStufe) const;
};

}  // namespace tarvelin
