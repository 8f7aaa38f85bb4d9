// The rocket launcher.
#pragma once

#include "model/cWerfteinheit.h"

namespace tarvelin {

class cRaketenwerfer final : public cWerfteinheit {
  public:
    explicit cRaketenwerfer(GlobaleVariablen& globale);
};

}  // namespace tarvelin
