// How the best duration of a search went down.
#pragma once

#include <QWidget>
#include <vector>

namespace tarvelin {

class Bestenkurve : public QWidget {
    Q_OBJECT

  public:
    explicit Bestenkurve(QWidget* parent);

    void Leere();
    /// `anteil`: how much of the search is done, from 0 to 1.
    void Merke(qreal anteil, qreal dauer);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::vector<QPointF> m_punkte;
};

}  // namespace tarvelin
