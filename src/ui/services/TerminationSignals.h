// The signals by which the system asks the program to end.
#pragma once

#include <QObject>
#include <functional>

namespace tarvelin {

/// Calls `finish` on the thread of the window, each time when SIGTERM, SIGHUP or SIGINT has come;
/// on a platform without signals never. A SIGHUP that the program was started to ignore stays
/// ignored. There can be one at a time.
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
