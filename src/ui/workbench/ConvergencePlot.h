// A plot of the best duration over the tries of a search.
#pragma once

#include <QWidget>
#include <cstdint>
#include <vector>

#include "util/Integers.h"

namespace tarvelin {

/// Longer durations stand above shorter ones, so the line falls. The scale fits the finds.
class ConvergencePlot : public QWidget {
    Q_OBJECT

  public:
    explicit ConvergencePlot(QWidget* parent);

    void Clear();
    /// `duration`, in seconds, is the best after `tries` of `totalTries`.
    void AddPoint(std::uint64_t tries, Long duration, std::uint64_t totalTries);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Point {
        double tries;
        double duration;
    };
    class Painting;

    std::vector<Point> m_points;
    double m_total = 1;
};

}  // namespace tarvelin
