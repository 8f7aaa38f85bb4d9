// Gate, drag and keyboard of an item picture.
#include "ui/widgets/ItemPicture.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include "model/ItemTable.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/ItemDisplay.h"

namespace tarvelin {

ItemPicture::ItemPicture(ItemId item, QWidget* parent) : QLabel(parent) {
    setObjectName(ToQString(ItemDisplays()[item].pictureName));
    setAccessibleName(ToQString(RowOf(item).HoverName()));
    setScaledContents(true);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setCursor(m_cursors.openHand);
}

void ItemPicture::SetCursors(const DragCursors& cursors) {
    m_cursors = cursors;
    setCursor(m_cursors.openHand);
}

void ItemPicture::SetGate(const HoverInfo& info) {
    if (m_dragEnabled != info.dragEnabled) {
        m_dragEnabled = info.dragEnabled;
        setCursor(m_dragEnabled ? m_cursors.openHand : QCursor(Qt::ForbiddenCursor));
    }
    const QString text = ToQString(info.tooltip);
    SetHint(*this, text);
    setAccessibleDescription(text);
}

void ItemPicture::enterEvent(QEnterEvent* event) {
    QLabel::enterEvent(event);
    emit MouseMove();
}

void ItemPicture::mouseMoveEvent(QMouseEvent* event) {
    QLabel::mouseMoveEvent(event);
    emit MouseMove();
}

void ItemPicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && m_dragEnabled) {
        BeginDrag();
    }
}

void ItemPicture::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    emit MouseMove();
}

void ItemPicture::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) {
        QLabel::keyPressEvent(event);
        return;
    }
    // The list may have changed while the picture kept the focus.
    emit MouseMove();
    if (m_dragEnabled && !event->isAutoRepeat()) {
        emit Chosen();
        // The tooltip names the cost of the next row, which has changed now.
        emit MouseMove();
    }
}

void ItemPicture::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (pixmap(Qt::ReturnByValue).isNull()) {
        QPainter(this).drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (hasFocus()) {
        constexpr int kPenWidth = 3;
        QPainter painter(this);
        painter.setPen(QPen(palette().highlight(), kPenWidth));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
}

void ItemPicture::BeginDrag() {
    QToolTip::hideText();
    auto* const mimeData = new QMimeData;
    mimeData->setData(kItemMimeType, objectName().toUtf8());
    // The toolkit deletes it after the drop.
    auto* const drag = new QDrag(this);
    drag->setMimeData(mimeData);
    if (m_cursors.dragged.isNull()) {
        drag->setPixmap(grab());
        drag->setHotSpot(rect().center());
    } else {
        // Only the cursor is to be seen.
        QPixmap empty(1, 1);
        empty.fill(Qt::transparent);
        drag->setPixmap(empty);
        drag->setDragCursor(m_cursors.dragged, Qt::CopyAction);
        drag->setDragCursor(m_cursors.dragged, Qt::IgnoreAction);
    }
    drag->exec(Qt::CopyAction);
}

}  // namespace tarvelin
