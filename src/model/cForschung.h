// The family of the five research items.
#pragma once

#include "model/cItem.h"

namespace tarvelin {

/// An item of the research queue. Its costs double with each level. The research lab makes it
/// faster, and holds it back while it is being raised itself.
class cForschung : public cItem {
  public:
    [[nodiscard]] double GetUpgradeTime() const override;

  protected:
    cForschung(GlobaleVariablen& globale, ItemId id, const Zeilenangabe& zeile,
               const Kosten& ersteStufe, const Stufenbedarfe& bedarf)
        : cItem(globale, {.Id = id,
                          .Zeile = zeile,
                          .Preise = {ersteStufe, Wachstum::Doppelt},
                          .Braucht = {.Ausbau = &globale.FolabUpgrading, .Stufen = bedarf}}) {}
};

}  // namespace tarvelin
