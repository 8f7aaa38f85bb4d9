// A span of wall-clock time in which the player can't give an order.
#pragma once

#include "util/DateTime.h"

namespace tarvelin {

/// Excludes its start and includes its end.
class cSchlafzeit {
  public:
    cSchlafzeit() = default;
    cSchlafzeit(DateTime theStartzeit, DateTime theEndzeit) { Init(theStartzeit, theEndzeit); }

    void Init(DateTime theStartzeit, DateTime theEndzeit);

    [[nodiscard]] bool CheckifInside(DateTime theCheckzeit) const {
        return IstSpaeter(m_Startzeit, theCheckzeit) && !IstSpaeter(m_Endzeit, theCheckzeit);
    }

    /// Seconds from a moment to the window's end; negative after it.
    [[nodiscard]] Long SecondsFrom_Insert_ToEnd(DateTime theInsertedDate) const {
        return m_Endzeit - theInsertedDate;
    }

    [[nodiscard]] DateTime Startzeit() const { return m_Startzeit; }
    [[nodiscard]] DateTime Endzeit() const { return m_Endzeit; }

    /// Whether `second` is later than `first`.
    [[nodiscard]] static bool IstSpaeter(DateTime first, DateTime second) { return second > first; }

  private:
    DateTime m_Startzeit;
    DateTime m_Endzeit;
};

}  // namespace tarvelin
