// The metal mine.
#pragma once

#include "model/cMine.h"

namespace tarvelin {

class cMetallMine final : public cMine {
  public:
    explicit cMetallMine(GlobaleVariablen& globale);
};

}  // namespace tarvelin
