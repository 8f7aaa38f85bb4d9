// Base of the four red panels over the working surface.
#pragma once

#include "ui/widgets/Controls.h"

namespace tarvelin {

class Panel : public GroupBox {
    Q_OBJECT

  public:
    /// `twips`: place and size.
    Panel(const QString& name, const QString& title, const QRect& twips, QWidget* parent);

    /// Gives the keyboard focus to the first control.
    void TakeFocus() { m_first->setFocus(Qt::OtherFocusReason); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void SetFirstControl(QWidget* control) { m_first = control; }
    /// The button "Hide"; the panel connects it.
    [[nodiscard]] QPushButton* NewHideButton(const QString& name);

  private:
    QWidget* m_first = this;
};

}  // namespace tarvelin
