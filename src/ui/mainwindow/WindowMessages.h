// Messages of a load or a run, over the window as they left it.
#pragma once

#include <functional>
#include <utility>

#include "ui/services/Environment.h"

namespace tarvelin {

/// Messages come up with what a load or a run has changed so far on the screen. From the second one
/// on the user can do without the rest.
class Standmeldungen final : public MessageSink {
  public:
    Standmeldungen(std::function<void()> zeigeStand, Dialogs& boxen)
        : m_zeigeStand(std::move(zeigeStand)), m_boxen(boxen) {}

    void Show(const Message& meldung) override {
        if (!m_gewuenscht) {
            return;
        }
        m_zeigeStand();
        if (m_erste) {
            m_boxen.Show(meldung);
        } else {
            m_gewuenscht = m_boxen.ShowSuppressible(meldung);
        }
        m_erste = false;
    }
    void Beep() override { m_boxen.Beep(); }

  private:
    std::function<void()> m_zeigeStand;
    Dialogs& m_boxen;
    bool m_erste = true;
    bool m_gewuenscht = true;
};

}  // namespace tarvelin
