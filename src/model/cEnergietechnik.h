// Energy technology.
#pragma once

#include "model/cForschung.h"

namespace tarvelin {

class cEnergietechnik final : public cForschung {
  public:
    explicit cEnergietechnik(GlobaleVariablen& globale);
};

}  // namespace tarvelin
