// Drags of a picture.
#include "ui/workbench/PalettePicture.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>

#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

void Palettenbild::mousePressEvent(QMouseEvent* event) {
    m_gedrueckt = event->pos();
    PictureButton::mousePressEvent(event);
}

void Palettenbild::mouseMoveEvent(QMouseEvent* event) {
    PictureButton::mouseMoveEvent(event);
    if ((event->buttons() & Qt::LeftButton) == 0 ||
        (event->pos() - m_gedrueckt).manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    setDown(false);
    auto* const daten = new QMimeData;
    daten->setData(kItemMimeType, objectName().toUtf8());
    // The toolkit deletes the drag when it is over.
    auto* const drag = new QDrag(this);
    drag->setMimeData(daten);
    drag->setPixmap(grab());
    drag->exec(Qt::CopyAction);
}

}  // namespace tarvelin
