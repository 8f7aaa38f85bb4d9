// A picture that can be clicked, or pressed by the space bar.
#pragma once

#include <QAbstractButton>
#include <QPixmap>

namespace tarvelin {

class Bildknopf : public QAbstractButton {
    Q_OBJECT

  public:
    Bildknopf(const QString& name, const QSize& groesse, const QString& hinweis, QWidget* parent);

    /// Scaled to the size of the button. A null picture leaves the one before.
    void SetzeBild(const QPixmap& bild);

    /// Shows that a press would be refused.
    void SetzeBlass(bool blass);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QPixmap m_bild;
    bool m_blass = false;
};

}  // namespace tarvelin
