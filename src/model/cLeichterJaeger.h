// The light fighter.
#pragma once

#include "model/cWerfteinheit.h"

namespace tarvelin {

class cLeichterJaeger final : public cWerfteinheit {
  public:
    explicit cLeichterJaeger(GlobaleVariablen& globale);
};

}  // namespace tarvelin
