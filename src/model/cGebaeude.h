// The family of the buildings: mines, power plant and facilities.
#pragma once

#include "model/cItem.h"

namespace tarvelin {

/// An item of the building queue. Robot factories make it faster.
class cGebaeude : public cItem {
  public:
    [[nodiscard]] double GetUpgradeTime() const override;

  protected:
    using cItem::cItem;
};

}  // namespace tarvelin
