// A timer that ticks once in every second of the wall clock.
#pragma once

#include <QTimer>

namespace tarvelin {

/// Its signal is `timeout`. It aims at a moment shortly behind the change of the second, anew after
/// every tick, so it drifts past none; a tick that is held up isn't made up later.
class Sekundentakt : public QTimer {
    Q_OBJECT

  public:
    Sekundentakt(const QString& name, QObject* parent);

    void Schalte(bool an);

  private:
    void ZieleAufNaechsteSekunde();
};

}  // namespace tarvelin
