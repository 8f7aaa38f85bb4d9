// A plot of the best duration over the course of a search.
#pragma once

#include <QWidget>
#include <vector>

namespace tarvelin {

class ConvergencePlot : public QWidget {
    Q_OBJECT

  public:
    explicit ConvergencePlot(QWidget* parent);

    void Clear();
    /// `share` is how much of the search is done, from 0 to 1; `duration` is in seconds.
    void AddPoint(qreal share, qreal duration);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::vector<QPointF> m_points;
};

}  // namespace tarvelin
