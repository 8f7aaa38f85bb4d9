// Shows messages of a load or a run over the main window.
#pragma once

#include <functional>
#include <utility>

#include "ui/services/Environment.h"

namespace tarvelin {

/// Before each message the window shows what has changed so far. From the second message on the
/// user can turn off the rest.
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
