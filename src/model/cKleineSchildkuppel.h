// The small shield dome.
#pragma once

#include "model/cWerfteinheit.h"

namespace tarvelin {

class cKleineSchildkuppel final : public cWerfteinheit {
  public:
    explicit cKleineSchildkuppel(GlobaleVariablen& globale);

  private:
    /// Its rows have no number, however many are built.
    [[nodiscard]] Bauzeittext ZeilenText() const override;
};

}  // namespace tarvelin
