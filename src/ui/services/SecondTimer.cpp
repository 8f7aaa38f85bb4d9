// Aims at the beginning of the next second.
#include "ui/services/SecondTimer.h"

#include <QTime>

namespace tarvelin {

SecondTimer::SecondTimer(const QString& name, QObject* parent) : QTimer(parent) {
    setObjectName(name);
    setTimerType(Qt::PreciseTimer);
    setSingleShot(true);
    connect(this, &QTimer::timeout, this, &SecondTimer::AimAtNextSecond);
}

void SecondTimer::SetRunning(bool on) {
    if (on) {
        AimAtNextSecond();
    } else {
        stop();
    }
}

void SecondTimer::AimAtNextSecond() {
    constexpr int kSecond = 1000;
    constexpr int kBehind = 50;
    start(kSecond - QTime::currentTime().msec() + kBehind);
}

}  // namespace tarvelin
