// The family of the five research items.
#pragma once

#include "model/cItem.h"

namespace tarvelin {

/// An item of the research queue. The research lab makes it faster, and holds it back while it is
/// being raised itself.
class cForschung : public cItem {
  public:
    [[nodiscard]] double GetUpgradeTime() const override;

  protected:
    /// `basis` are the costs of the first level; they double with each level.
    cForschung(GlobaleVariablen& globale, ItemId id, std::string_view bauzeitName,
               const Kosten& basis, std::span<const Stufenbedarf> bedarf)
        : cItem(globale, id, bauzeitName), m_basis(basis), m_bedarf(bedarf) {}

  private:
    [[nodiscard]] Kosten Preis(Long stufe) const override {
        return VerdoppelndeKosten(m_basis, stufe);
    }
    [[nodiscard]] Sperre Gates() const override;

    Kosten m_basis;
    std::span<const Stufenbedarf> m_bedarf;
};

}  // namespace tarvelin
