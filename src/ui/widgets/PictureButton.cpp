// Painting of a picture button.
#include "ui/widgets/PictureButton.h"

#include <QPainter>

namespace tarvelin {

Bildknopf::Bildknopf(const QString& name, const QSize& groesse, const QString& hinweis,
                     QWidget* parent)
    : QAbstractButton(parent) {
    setObjectName(name);
    setAccessibleName(hinweis.trimmed());
    setToolTip(hinweis);
    setFixedSize(groesse);
    setFocusPolicy(Qt::TabFocus);
}

void Bildknopf::SetzeBild(const QPixmap& bild) {
    if (!bild.isNull()) {
        m_bild = bild;
        update();
    }
}

void Bildknopf::SetzeBlass(bool blass) {
    m_blass = blass;
    update();
}

void Bildknopf::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    constexpr qreal kBlass = 0.3;
    painter.setOpacity(m_blass ? kBlass : 1);
    painter.drawPixmap(rect(), m_bild);
    painter.setOpacity(1);
    if (hasFocus()) {
        painter.setPen(palette().highlight().color());
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

}  // namespace tarvelin
