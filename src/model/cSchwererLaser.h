// The heavy laser.
#pragma once

#include "model/cWerfteinheit.h"

namespace tarvelin {

class cSchwererLaser final : public cWerfteinheit {
  public:
    explicit cSchwererLaser(GlobaleVariablen& globale);
};

}  // namespace tarvelin
