// One of the twenty item pictures: a source of drags, as long as its gate is open.
#pragma once

#include <QLabel>

#include "plan/HoverInfo.h"

namespace tarvelin {

/// What a dragged picture carries: its name, of use to no other program.
inline const QString kItemformat = QStringLiteral("application/x-tarvelin-item");

/// Pointer over an open picture, and what the pointer shows while a picture is dragged.
struct Ziehzeiger {
    QCursor Offen;
    /// Null: the dragged picture itself is shown.
    QPixmap Gezogen;
};

class Itembild : public QLabel {
    Q_OBJECT

  public:
    Itembild(ItemId item, QWidget* parent);

    void SetzeZeiger(const Ziehzeiger& zeiger);

    /// Opens or closes the gate: drag, pointer and hint go together.
    void SetzeGate(const HoverInfo& info);

  signals:
    /// The pointer moved over the picture, or the keyboard reached it.
    void MouseMove();
    /// The space bar took the picture's place in a drag onto the list. Only while the gate is open.
    void Gewaehlt();

  protected:
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void Ziehe();

    Ziehzeiger m_zeiger{Qt::OpenHandCursor, {}};
    bool m_dragOffen = true;
};

}  // namespace tarvelin
