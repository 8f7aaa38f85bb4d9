// The family of the units of the shipyard: satellite, ships and defences.
#pragma once

#include "model/cItem.h"

namespace tarvelin {

/// An item of the shipyard queue: one order is one unit at a fixed price. The shipyard makes it
/// faster, and holds most units back while it is being raised itself.
class cWerfteinheit : public cItem {
  public:
    [[nodiscard]] double GetUpgradeTime() const override;

  protected:
    cWerfteinheit(GlobaleVariablen& globale, ItemId id, const Zeilenangabe& zeile,
                  const Kosten& stueckpreis, const Stufenbedarfe& bedarf)
        : cItem(globale, {.Id = id,
                          .Zeile = zeile,
                          .Preise = {stueckpreis, Wachstum::Keines},
                          .Braucht = {.Ausbau = &globale.WerftUpgrading, .Stufen = bedarf}}) {}

    /// For a unit that has rules of its own.
    using cItem::cItem;
};

}  // namespace tarvelin
