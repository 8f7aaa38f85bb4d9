// The light laser.
#pragma once

#include "model/cWerfteinheit.h"

namespace tarvelin {

class cLeichterLaser final : public cWerfteinheit {
  public:
    explicit cLeichterLaser(GlobaleVariablen& globale);
};

}  // namespace tarvelin
