// Laser technology.
#pragma once

#include "model/cForschung.h"

namespace tarvelin {

class cLasertechnik final : public cForschung {
  public:
    explicit cLasertechnik(GlobaleVariablen& globale);
};

}  // namespace tarvelin
