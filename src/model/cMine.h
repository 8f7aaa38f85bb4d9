// The family of the three mines: what they yield and what energy they need.
#pragma once

#include "model/cGebaeude.h"

namespace tarvelin {

/// A mine with a production factor of its own, from 0 to 1, which is 1 after a reset.
class cMine : public cGebaeude {
  public:
    /// Takes effect with the next `RefreshProduktion`.
    void SetProdfaktor(float theFaktor);

    /// Adds what the mine yields in `SecondsToPass` seconds, which may be negative, to its stock.
    /// Every call rounds, so the result depends on how time is cut into calls.
    void Passtime(Long SecondsToPass);

    /// Energy that the mine needs, a whole number. At `kEigeneStufe` the mine's own level and
    /// factor count, and `externerProduktionsfaktor` is not read.
    [[nodiscard]] double GetEnergieVerbrauch(Long ExterneStufe = kEigeneStufe,
                                             float externerProduktionsfaktor = 1.0F) const;

    /// Units per hour, a whole number, from the shared energy balance and speed factor. Level and
    /// factor as above.
    [[nodiscard]] Festkomma GetProduktion(Long ExterneStufe = kEigeneStufe,
                                          float externerProduktionsfaktor = 1.0F) const;

    /// Brings the mine's shared hourly rate up to date.
    void RefreshProduktion() { m_proStunde = GetProduktion(); }

  protected:
    /// The figures of one mine. The yield per hour at level L is A × L × 1.1^L and the base income
    /// B, the need C × L × 1.1^L.
    struct Kennzahlen {
        double A = 0;
        double B = 0;
        float C = 0;
    };

    /// `vorrat` and `proStunde` are the shared stock and rate that the mine feeds.
    cMine(GlobaleVariablen& globale, const Itemangaben& angaben, const Kennzahlen& kennzahlen,
          Festkomma& vorrat, Festkomma& proStunde)
        : cGebaeude(globale, angaben),
          m_kennzahlen(kennzahlen),
          m_vorrat(vorrat),
          m_proStunde(proStunde) {}

  private:
    /// Factor by which the temperature of the planet changes the yield, but not the base income.
    [[nodiscard]] virtual double Temperaturfaktor() const { return 1; }

    void NachInit() override;
    void NachFinish() override;

    Kennzahlen m_kennzahlen;
    Festkomma& m_vorrat;
    Festkomma& m_proStunde;
    float m_minenProdfaktor = 1.0F;
};

}  // namespace tarvelin
