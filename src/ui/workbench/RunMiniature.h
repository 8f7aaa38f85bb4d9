// A run at a glance: nights, the orders of the three queues, the end.
#pragma once

#include <QWidget>

#include "simulation/RunTrace.h"

namespace tarvelin {

class RunMiniature : public QWidget {
    Q_OBJECT

  public:
    /// Shows this run over its first `seconds`, so that runs beside each other have one scale.
    RunMiniature(RunTrace trace, Long seconds, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] qreal X(Long seconds) const;
    void PaintNights(QPainter& painter) const;
    void PaintDays(QPainter& painter) const;
    void PaintOrders(QPainter& painter) const;

    RunTrace m_trace;
    Long m_seconds;
};

}  // namespace tarvelin
