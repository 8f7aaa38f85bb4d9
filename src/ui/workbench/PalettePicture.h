// A picture of the palette with its name, which can be clicked or dragged to the list.
#pragma once

#include <QAbstractButton>
#include <QPixmap>

namespace tarvelin {

class PalettePicture : public QAbstractButton {
    Q_OBJECT

  public:
    /// A drag carries `name`.
    PalettePicture(const QString& name, QWidget* parent);

    void SetPicture(const QPixmap& picture);
    /// Below the picture, in two lines.
    void SetCaption(const QString& caption);
    /// A locked picture is pale and shows a lock, but can still be pressed.
    void SetLocked(bool locked);

    [[nodiscard]] QSize sizeHint() const override;

  signals:
    /// The pointer or the focus has come or gone.
    void PointedAt(bool here);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    [[nodiscard]] QRect PictureRect() const;

    QPixmap m_picture;
    QString m_caption;
    bool m_locked = false;
    QPoint m_pressed;
};

}  // namespace tarvelin
