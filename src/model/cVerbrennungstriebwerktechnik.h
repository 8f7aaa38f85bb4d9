// Combustion drive technology.
#pragma once

#include "model/cForschung.h"

namespace tarvelin {

class cVerbrennungstriebwerktechnik final : public cForschung {
  public:
    explicit cVerbrennungstriebwerktechnik(GlobaleVariablen& globale);
};

}  // namespace tarvelin
