// A button that shows nothing but a picture.
#pragma once

#include <QAbstractButton>
#include <QPixmap>

namespace tarvelin {

class PictureButton : public QAbstractButton {
    Q_OBJECT

  public:
    PictureButton(const QString& name, const QSize& size, const QString& hint, QWidget* parent);

    /// Scales it to the size of the button. A null picture is ignored.
    void SetPicture(const QPixmap& picture);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QPixmap m_picture;
};

}  // namespace tarvelin
