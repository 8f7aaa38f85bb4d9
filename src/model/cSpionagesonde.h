// The espionage probe.
#pragma once

#include "model/cWerfteinheit.h"

namespace tarvelin {

class cSpionagesonde final : public cWerfteinheit {
  public:
    explicit cSpionagesonde(GlobaleVariablen& globale);
};

}  // namespace tarvelin
