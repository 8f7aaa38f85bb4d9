// What the four red panels over the working surface have in common.
#pragma once

#include "ui/widgets/Controls.h"

namespace tarvelin {

/// A red panel that hides what lies under it.
class Feld : public Gruppe {
    Q_OBJECT

  public:
    /// Place and size in twips.
    Feld(const QString& name, const QString& titel, const QRect& twips, QWidget* parent);

    /// The keyboard goes to the panel's first control.
    void NimmFokus() { m_erstes->setFocus(Qt::OtherFocusReason); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void SetzeErstes(QWidget* steuerelement) { m_erstes = steuerelement; }
    /// The button "Hide", which hides the panel.
    [[nodiscard]] QPushButton* NeuerHideKnopf(const QString& name);

  private:
    QWidget* m_erstes = this;
};

}  // namespace tarvelin
