// One stretch of wall-clock time in which the player can't give an order.
#pragma once

#include "util/DateTime.h"

namespace tarvelin {

/// Contains its end and doesn't contain its begin.
class cSchlafzeit {
  public:
    cSchlafzeit() = default;
    cSchlafzeit(DateTime theStartzeit, DateTime theEndzeit) { Init(theStartzeit, theEndzeit); }

    void Init(DateTime theStartzeit, DateTime theEndzeit);

    [[nodiscard]] bool CheckifInside(DateTime theCheckzeit) const {
        return IstSpaeter(m_startzeit, theCheckzeit) && !IstSpaeter(m_endzeit, theCheckzeit);
    }

    /// Seconds from a moment to the window's end; negative behind the end.
    [[nodiscard]] Long SecondsFrom_Insert_ToEnd(DateTime theInsertedDate) const {
        return m_endzeit - theInsertedDate;
    }

    [[nodiscard]] DateTime Beginn() const { return m_startzeit; }
    [[nodiscard]] DateTime Ende() const { return m_endzeit; }

    /// Whether `zweiter` lies at least one second behind `erster`.
    [[nodiscard]] static bool IstSpaeter(DateTime erster, DateTime zweiter) {
        return zweiter > erster;
    }

  private:
    DateTime m_startzeit;
    DateTime m_endzeit;
};

}  // namespace tarvelin
