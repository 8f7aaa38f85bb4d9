// One stretch of wall-clock time in which the player can't give an order.
#pragma once

#include "util/DateTime.h"

namespace tarvelin {

/// Contains its end and doesn't contain its begin.
class cSchlafzeit {
  public:
    cSchlafzeit() = default;
    cSchlafzeit(Zeitpunkt theStartzeit, Zeitpunkt theEndzeit) { Init(theStartzeit, theEndzeit); }

    void Init(Zeitpunkt theStartzeit, Zeitpunkt theEndzeit);

    [[nodiscard]] bool CheckifInside(Zeitpunkt theCheckzeit) const {
        return IstSpaeter(m_startzeit, theCheckzeit) && !IstSpaeter(m_endzeit, theCheckzeit);
    }

    /// Seconds from a moment to the window's end; negative behind the end.
    [[nodiscard]] Long SecondsFrom_Insert_ToEnd(Zeitpunkt theInsertedDate) const {
        return m_endzeit - theInsertedDate;
    }

    [[nodiscard]] Zeitpunkt Beginn() const { return m_startzeit; }
    [[nodiscard]] Zeitpunkt Ende() const { return m_endzeit; }

    /// Whether `zweiter` lies at least one second behind `erster`.
    [[nodiscard]] static bool IstSpaeter(Zeitpunkt erster, Zeitpunkt zweiter) {
        return zweiter > erster;
    }

  private:
    Zeitpunkt m_startzeit;
    Zeitpunkt m_endzeit;
};

}  // namespace tarvelin
