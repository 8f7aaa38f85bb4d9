// The gate of a picture and its drag.
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

Itembild::Itembild(ItemId item, QWidget* parent) : QLabel(parent) {
    setObjectName(AlsQString(Itemansichten()[item].Bild));
    setAccessibleName(AlsQString(RowOf(item).HoverName()));
    setScaledContents(true);
    setMouseTracking(true);
    setFocusPolicy(Qt::TabFocus);
    setCursor(m_zeiger.Offen);
}

void Itembild::SetzeZeiger(const Ziehzeiger& zeiger) {
    m_zeiger = zeiger;
    setCursor(m_zeiger.Offen);
}

void Itembild::SetzeGate(const HoverInfo& info) {
    if (m_dragOffen != info.dragEnabled) {
        m_dragOffen = info.dragEnabled;
        setCursor(m_dragOffen ? m_zeiger.Offen : QCursor(Qt::ForbiddenCursor));
    }
    const QString text = AlsQString(info.tooltip);
    SetzeHinweis(*this, text);
    setAccessibleDescription(text);
}

void Itembild::enterEvent(QEnterEvent* event) {
    QLabel::enterEvent(event);
    emit MouseMove();
}

void Itembild::mouseMoveEvent(QMouseEvent* event) {
    QLabel::mouseMoveEvent(event);
    emit MouseMove();
}

void Itembild::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && m_dragOffen) {
        Ziehe();
    }
}

void Itembild::focusInEvent(QFocusEvent* event) {
    QLabel::focusInEvent(event);
    emit MouseMove();
}

void Itembild::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) {
        QLabel::keyPressEvent(event);
        return;
    }
    // The list may have changed while the picture kept the focus.
    emit MouseMove();
    if (m_dragOffen && !event->isAutoRepeat()) {
        emit Gewaehlt();
        // The hint names what the next row costs.
        emit MouseMove();
    }
}

void Itembild::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (pixmap(Qt::ReturnByValue).isNull()) {
        QPainter(this).drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (hasFocus()) {
        constexpr int kStrich = 3;
        QPainter painter(this);
        painter.setPen(QPen(palette().highlight(), kStrich));
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }
}

void Itembild::Ziehe() {
    QToolTip::hideText();
    auto* const daten = new QMimeData;
    daten->setData(kItemformat, objectName().toUtf8());
    // The toolkit deletes the drag when it is over.
    auto* const drag = new QDrag(this);
    drag->setMimeData(daten);
    if (m_zeiger.Gezogen.isNull()) {
        drag->setPixmap(grab());
        drag->setHotSpot(rect().center());
    } else {
        // Nothing beside the pointer.
        QPixmap leer(1, 1);
        leer.fill(Qt::transparent);
        drag->setPixmap(leer);
        drag->setDragCursor(m_zeiger.Gezogen, Qt::CopyAction);
        drag->setDragCursor(m_zeiger.Gezogen, Qt::IgnoreAction);
    }
    drag->exec(Qt::CopyAction);
}

}  // namespace tarvelin
