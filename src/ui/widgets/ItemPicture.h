// One of the twenty item pictures. It can be dragged while its gate is open.
#pragma once

#include <QLabel>

#include "plan/HoverInfo.h"

namespace tarvelin {

/// The data of a drag is the picture's object name; private to this program.
inline constexpr QLatin1String kItemMimeType("application/x-tarvelin-item");

struct DragCursors {
    /// Over a picture that can be dragged.
    QCursor openHand;
    /// Shown during a drag. If null, the picture itself is shown.
    QPixmap dragged;
};

class ItemPicture : public QLabel {
    Q_OBJECT

  public:
    ItemPicture(ItemId item, QWidget* parent);

    void SetCursors(const DragCursors& cursors);

    /// Sets tooltip and cursor, and whether the picture can be dragged.
    void SetGate(const HoverInfo& info);

  signals:
    /// The pointer has moved over the picture, or the picture got the focus.
    void MouseMove();
    /// The space bar was pressed while the gate is open: the same as a drop on the list.
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
