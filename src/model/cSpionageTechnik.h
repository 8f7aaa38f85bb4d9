// Espionage technology.
#pragma once

#include "model/cForschung.h"

namespace tarvelin {

class cSpionageTechnik final : public cForschung {
  public:
    explicit cSpionageTechnik(GlobaleVariablen& globale);
};

}  // namespace tarvelin
