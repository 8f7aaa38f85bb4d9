// The family of the units of the shipyard: satellite, ships and defences.
#pragma once

#include "model/cItem.h"

namespace tarvelin {

/// An item of the shipyard queue: one order is one unit at a fixed price. The shipyard makes it
/// faster, and holds it back while it is being raised itself.
class cWerfteinheit : public cItem {
  public:
    [[nodiscard]] double GetUpgradeTime() const override;

  protected:
    cWerfteinheit(GlobaleVariablen& globale, ItemId id, std::string_view bauzeitName,
                  const Kosten& stueckpreis, std::span<const Stufenbedarf> bedarf)
        : cItem(globale, id, bauzeitName), m_stueckpreis(stueckpreis), m_bedarf(bedarf) {}

    [[nodiscard]] std::span<const Stufenbedarf> Bedarf() const { return m_bedarf; }

  private:
    [[nodiscard]] Kosten Preis(Long /*stufe*/) const override { return m_stueckpreis; }
    [[nodiscard]] Sperre Gates() const override;

    Kosten m_stueckpreis;
    std::span<const Stufenbedarf> m_bedarf;
};

}  // namespace tarvelin
