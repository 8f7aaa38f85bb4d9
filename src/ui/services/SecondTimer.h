// A timer that ticks once in every second of the wall clock.
#pragma once

#include <QTimer>

namespace tarvelin {

/// Its signal is `timeout`. It aims at a moment shortly behind the change of the second, anew after
/// every tick, so it drifts past none; a tick that is held up isn't made up later.
class SecondTimer : public QTimer {
    Q_OBJECT

  public:
    SecondTimer(const QString& name, QObject* parent);

    void SetRunning(bool on);

  private:
    void AimAtNextSecond();
};

}  // namespace tarvelin
