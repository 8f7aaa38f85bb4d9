// The signals by which the system asks the program to end.
#pragma once

#include <QObject>
#include <functional>

namespace tarvelin {

/// Calls `beende` on the thread of the window, each time when SIGTERM, SIGHUP or SIGINT has come;
/// on a platform without signals never. A SIGHUP that the program was started to ignore stays
/// ignored. There can be one at a time.
class Endesignale : public QObject {
  public:
    explicit Endesignale(std::function<void()> beende);
    Endesignale(const Endesignale&) = delete;
    Endesignale& operator=(const Endesignale&) = delete;
    ~Endesignale() override;

  private:
    std::function<void()> m_beende;
};

}  // namespace tarvelin
