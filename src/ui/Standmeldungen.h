// Messages of a load or a run, over the window as they left it.
#pragma once

#include <functional>
#include <utility>

#include "util/Meldung.h"

namespace tarvelin {

/// Messages come up with what a load or a run has changed so far on the screen.
class Standmeldungen final : public Meldungsausgabe {
  public:
    Standmeldungen(std::function<void()> zeigeStand, Meldungsausgabe& boxen)
        : m_zeigeStand(std::move(zeigeStand)), m_boxen(boxen) {}

    void Zeige(const Meldung& meldung) override {
        m_zeigeStand();
        m_boxen.Zeige(meldung);
    }
    void Piepton() override { m_boxen.Piepton(); }

  private:
    std::function<void()> m_zeigeStand;
    Meldungsausgabe& m_boxen;
};

}  // namespace tarvelin
