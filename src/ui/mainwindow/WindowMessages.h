// Messages of a load or a run, over the window as they left it.
#pragma once

#include <functional>
#include <utility>

#include "ui/services/Environment.h"

namespace tarvelin {

/// Messages come up with what a load or a run has changed so far on the screen. From the second one
/// on the user can do without the rest.
class WindowMessages final : public MessageSink {
  public:
    WindowMessages(std::function<void()> showProgress, Dialogs& dialogs)
        : m_showProgress(std::move(showProgress)), m_dialogs(dialogs) {}

    void Show(const Message& message) override {
        if (!m_wanted) {
            return;
        }
        m_showProgress();
        if (m_first) {
            m_dialogs.Show(message);
        } else {
            m_wanted = m_dialogs.ShowSuppressible(message);
        }
        m_first = false;
    }
    void Beep() override { m_dialogs.Beep(); }

  private:
    std::function<void()> m_showProgress;
    Dialogs& m_dialogs;
    bool m_first = true;
    bool m_wanted = true;
};

}  // namespace tarvelin
