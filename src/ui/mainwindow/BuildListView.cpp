// Accepts drops of item pictures.
#include "ui/mainwindow/BuildListView.h"

#include <QDragEnterEvent>

#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

namespace {

/// Null for a drag from another program.
const ItemPicture* DraggedPicture(const QDropEvent& event) {
    return qobject_cast<const ItemPicture*>(event.source());
}

void OfferPicture(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(DraggedPicture(event) != nullptr);
}

}  // namespace

BuildListView::BuildListView(QWidget* parent)
    : ListView(QStringLiteral("LV_Bauliste"), QStringLiteral("Bauliste"), {640, 3636, 800},
               parent) {
    setHeaderHidden(true);
    setAcceptDrops(true);
}

// Drops count anywhere on the list, the scroll bar and the frame included.
bool BuildListView::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            // NOLINTNEXTLINE(bugprone-parent-virtual-call): skips the viewport's handling
            return QWidget::event(event);
        default:
            return ListView::event(event);
    }
}

void BuildListView::dragEnterEvent(QDragEnterEvent* event) {
    OfferPicture(*event);
}

void BuildListView::dragMoveEvent(QDragMoveEvent* event) {
    OfferPicture(*event);
}

void BuildListView::dropEvent(QDropEvent* event) {
    OfferPicture(*event);
    if (const ItemPicture* const picture = DraggedPicture(*event)) {
        emit DragDrop(picture->objectName());
    }
}

}  // namespace tarvelin
