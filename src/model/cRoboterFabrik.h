// The robot factory, which makes buildings faster.
#pragma once

#include "model/cGebaeude.h"

namespace tarvelin {

class cRoboterFabrik final : public cGebaeude {
  public:
    explicit cRoboterFabrik(GlobaleVariablen& globale);
};

}  // namespace tarvelin
