// Starts the drag.
#include "ui/workbench/PalettePicture.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>

#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

void PalettePicture::mousePressEvent(QMouseEvent* event) {
    m_pressed = event->pos();
    PictureButton::mousePressEvent(event);
}

void PalettePicture::mouseMoveEvent(QMouseEvent* event) {
    PictureButton::mouseMoveEvent(event);
    if ((event->buttons() & Qt::LeftButton) == 0 ||
        (event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance()) {
        return;
    }
    setDown(false);
    auto* const mimeData = new QMimeData;
    mimeData->setData(kItemMimeType, objectName().toUtf8());
    // The toolkit deletes it after the drop.
    auto* const drag = new QDrag(this);
    drag->setMimeData(mimeData);
    drag->setPixmap(grab());
    drag->exec(Qt::CopyAction);
}

}  // namespace tarvelin
