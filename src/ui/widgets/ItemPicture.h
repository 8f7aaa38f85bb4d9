// One of the twenty item pictures: a source of drags, as long as its gate is open.
#pragma once

#include <QLabel>

#include "plan/HoverInfo.h"

namespace tarvelin {

/// What a dragged picture carries: its name, of use to no other program.
inline const QString kItemMimeType = QStringLiteral("application/x-tarvelin-item");

/// Pointer over an open picture, and what the pointer shows while a picture is dragged.
struct DragCursors {
    QCursor openHand;
    /// Null: the dragged picture itself is shown.
    QPixmap dragged;
};

class ItemPicture : public QLabel {
    Q_OBJECT

  public:
    ItemPicture(ItemId item, QWidget* parent);

    void SetCursors(const DragCursors& cursors);

    /// Opens or closes the gate: drag, pointer and hint go together.
    void SetGate(const HoverInfo& info);

  signals:
    /// The pointer moved over the picture, or the keyboard reached it.
    void MouseMove();
    /// The space bar took the picture's place in a drag onto the list. Only while the gate is open.
    void Chosen();

  protected:
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void BeginDrag();

    DragCursors m_cursors{Qt::OpenHandCursor, {}};
    bool m_dragEnabled = true;
};

}  // namespace tarvelin
