// What the build list lets be dropped on it.
#include "ui/mainwindow/BuildListView.h"

#include <QDragEnterEvent>

#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

namespace {

/// A drag from another program has no source here.
const ItemPicture* GezogenesBild(const QDropEvent& event) {
    return qobject_cast<const ItemPicture*>(event.source());
}

void NimmBildAn(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(GezogenesBild(event) != nullptr);
}

}  // namespace

Baulistenansicht::Baulistenansicht(QWidget* parent)
    : ListView(QStringLiteral("LV_Bauliste"), QStringLiteral("Bauliste"), {640, 3636, 800},
               parent) {
    setHeaderHidden(true);
    setAcceptDrops(true);
}

// The bar at the side belongs to the list as much as the rows do.
bool Baulistenansicht::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            // NOLINTNEXTLINE(bugprone-parent-virtual-call): the rows' own road is passed by
            return QWidget::event(event);
        default:
            return ListView::event(event);
    }
}

void Baulistenansicht::dragEnterEvent(QDragEnterEvent* event) {
    NimmBildAn(*event);
}

void Baulistenansicht::dragMoveEvent(QDragMoveEvent* event) {
    NimmBildAn(*event);
}

void Baulistenansicht::dropEvent(QDropEvent* event) {
    NimmBildAn(*event);
    if (const ItemPicture* const bild = GezogenesBild(*event)) {
        emit DragDrop(bild->objectName());
    }
}

}  // namespace tarvelin
