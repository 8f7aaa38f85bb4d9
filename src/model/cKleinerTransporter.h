// The small transporter.
#pragma once

#include "model/cWerfteinheit.h"

namespace tarvelin {

class cKleinerTransporter final : public cWerfteinheit {
  public:
    explicit cKleinerTransporter(GlobaleVariablen& globale);
};

}  // namespace tarvelin
