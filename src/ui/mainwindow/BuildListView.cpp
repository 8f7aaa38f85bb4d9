// What the build list lets be dropped on it.
#include "ui/mainwindow/BuildListView.h"

#include <QDragEnterEvent>

#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

namespace {

/// A drag from another program has no source here.
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

// The bar at the side belongs to the list as much as the rows do.
bool BuildListView::event(QEvent* event) {
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
