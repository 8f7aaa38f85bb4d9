// Aiming at the seconds.
#include "ui/services/SecondTimer.h"

#include <QTime>

namespace tarvelin {

Sekundentakt::Sekundentakt(const QString& name, QObject* parent) : QTimer(parent) {
    setObjectName(name);
    setTimerType(Qt::PreciseTimer);
    setSingleShot(true);
    connect(this, &QTimer::timeout, this, &Sekundentakt::ZieleAufNaechsteSekunde);
}

void Sekundentakt::Schalte(bool an) {
    if (an) {
        ZieleAufNaechsteSekunde();
    } else {
        stop();
    }
}

void Sekundentakt::ZieleAufNaechsteSekunde() {
    constexpr int kSekunde = 1000;
    constexpr int kDahinter = 50;
    start(kSekunde - QTime::currentTime().msec() + kDahinter);
}

}  // namespace tarvelin
