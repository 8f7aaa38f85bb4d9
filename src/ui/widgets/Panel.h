// What the four red panels over the working surface have in common.
#pragma once

#include "ui/widgets/Controls.h"

namespace tarvelin {

/// A red panel that hides what lies under it.
class Panel : public GroupBox {
    Q_OBJECT

  public:
    /// Place and size in twips.
    Panel(const QString& name, const QString& title, const QRect& twips, QWidget* parent);

    /// The keyboard goes to the panel's first control.
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
