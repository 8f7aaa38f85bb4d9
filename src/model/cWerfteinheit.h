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
    /// Whether the unit can be started while the shipyard is being raised.
    enum class BeimAusbau : bool { Nein, Ja };

    cWerfteinheit(GlobaleVariablen& globale, ItemId id, const Zeilenangabe& zeile,
                  const Kosten& stueckpreis, const Stufenbedarfe& bedarf,
                  BeimAusbau beimAusbau = BeimAusbau::Nein)
        : cItem(globale,
                {.Id = id,
                 .Zeile = zeile,
                 .Preise = {stueckpreis, Wachstum::Keines},
                 .Braucht = {.Ausbau = beimAusbau == BeimAusbau::Ja ? &Bedingungen::kNie
                                                                    : &globale.WerftUpgrading,
                             .Stufen = bedarf}}) {}
};

}  // namespace tarvelin
