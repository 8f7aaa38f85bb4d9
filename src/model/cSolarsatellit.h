// The solar satellite: energy from the shipyard.
#pragma once

#include "model/cWerfteinheit.h"

namespace tarvelin {

class cSolarsatellit final : public cWerfteinheit {
  public:
    explicit cSolarsatellit(GlobaleVariablen& globale);

    /// Energy that a number of satellites delivers at the planet's temperature, a whole number;
    /// negative in great cold.
    [[nodiscard]] Festkomma GetProduktion(Long ExterneStufe = kEigeneStufe) const;
};

}  // namespace tarvelin
