// A timer that ticks once in every second of the wall clock.
#pragma once

#include <QTimer>

namespace tarvelin {

/// Emits `timeout` shortly after each second begins. It aims anew after every tick, so it never
/// drifts; ticks missed while the program was busy are not made up.
class SecondTimer : public QTimer {
    Q_OBJECT

  public:
    SecondTimer(const QString& name, QObject* parent);

    void SetRunning(bool on);

  private:
    void AimAtNextSecond();
};

}  // namespace tarvelin
