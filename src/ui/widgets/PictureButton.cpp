// Painting and properties of a picture button.
#include "ui/widgets/PictureButton.h"

#include <QPainter>

namespace tarvelin {

PictureButton::PictureButton(const QString& name, const QSize& size, const QString& hint,
                             QWidget* parent)
    : QAbstractButton(parent) {
    setObjectName(name);
    setAccessibleName(hint.trimmed());
    setToolTip(hint);
    setFixedSize(size);
    setFocusPolicy(Qt::TabFocus);
}

void PictureButton::SetPicture(const QPixmap& picture) {
    if (!picture.isNull()) {
        m_picture = picture;
        update();
    }
}

void PictureButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(), m_picture);
    if (hasFocus()) {
        painter.setPen(palette().highlight().color());
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

}  // namespace tarvelin
