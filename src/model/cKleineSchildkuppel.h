// The small shield dome.
#pragma once

#include "model/cWerfteinheit.h"

namespace tarvelin {

class cKleineSchildkuppel final : public cWerfteinheit {
  public:
    explicit cKleineSchildkuppel(GlobaleVariablen& globale);
};

}  // namespace tarvelin
