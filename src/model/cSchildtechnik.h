// Shield technology.
#pragma once

#include "model/cForschung.h"

namespace tarvelin {

class cSchildtechnik final : public cForschung {
  public:
    explicit cSchildtechnik(GlobaleVariablen& globale);
};

}  // namespace tarvelin
