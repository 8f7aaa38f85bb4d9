// Ends the program on signals of the system.
#pragma once

#include <QObject>
#include <functional>

namespace tarvelin {

/// Calls `finish` from the event loop after each SIGTERM, SIGHUP or SIGINT; never on a platform
/// without signals. A SIGHUP that was ignored at the start stays ignored, as under nohup. Only one
/// object may exist at a time.
class TerminationSignals : public QObject {
  public:
    explicit TerminationSignals(std::function<void()> finish);
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;
    ~TerminationSignals() override;

  private:
    std::function<void()> m_finish;
};

}  // namespace tarvelin
