// The working surface: the plan, the item pictures and the result, in six groups.
#pragma once

#include <QWidget>
#include <vector>

#include "plan/Plan.h"
#include "simulation/RunSimulation.h"
#include "ui/Baulistengruppe.h"
#include "ui/Bauzeitengruppe.h"
#include "ui/Itemgruppe.h"

namespace tarvelin {

class Fra_Rest : public QWidget {
    Q_OBJECT

  public:
    /// Shows `liste` and `lauf`, which must outlive the surface.
    Fra_Rest(const Bauliste& liste, const Lauf& lauf, QWidget* parent);

    /// The rows of the list and the levels over the pictures.
    void ZeigeListe();
    void ZeigeBauzeiten() { Frame6->ZeigeBauzeiten(); }
    void Zeige(const Ergebnistexte& texte);
    /// The names under the pictures.
    void ZeigeNamen(bool zeigen);

    /// All twenty.
    [[nodiscard]] const std::vector<Itemplatz>& Plaetze() const { return m_plaetze; }

    Baulistengruppe* const Frame8;
    Bauzeitengruppe* const Frame6;

  private:
    std::vector<Itemplatz> BaueItemgruppen();

    const Bauliste& m_liste;
    std::vector<Itemplatz> m_plaetze;
};

}  // namespace tarvelin
