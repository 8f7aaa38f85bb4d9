// A picture that can be clicked, or pressed by the space bar.
#pragma once

#include <QAbstractButton>
#include <QPixmap>

namespace tarvelin {

class PictureButton : public QAbstractButton {
    Q_OBJECT

  public:
    PictureButton(const QString& name, const QSize& size, const QString& hint, QWidget* parent);

    /// Scaled to the size of the button. A null picture leaves the one before.
    void SetPicture(const QPixmap& picture);

    /// Shows that a press would be refused.
    void SetDimmed(bool dimmed);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QPixmap m_picture;
    bool m_dimmed = false;
};

}  // namespace tarvelin
