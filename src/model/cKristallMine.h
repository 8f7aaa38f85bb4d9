// The crystal mine.
#pragma once

#include "model/cMine.h"

namespace tarvelin {

class cKristallMine final : public cMine {
  public:
    explicit cKristallMine(GlobaleVariablen& globale);
};

}  // namespace tarvelin
