// Which button Enter presses: the window's default one, or the one that Tab walked to.
#pragma once

#include <QAbstractButton>

namespace tarvelin {

/// Any press of the mouse in the window gives Enter to its default button, wherever the focus is,
/// until the focus moves by Tab.
class EnterKeyFilter : public QObject {
    Q_OBJECT

  public:
    /// For the window that `button` stands in.
    explicit EnterKeyFilter(QAbstractButton* button);

  protected:
    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    [[nodiscard]] bool IsInWindow(const QObject* target) const;

    QAbstractButton* m_button;
    bool m_belongsToButton = false;
};

}  // namespace tarvelin
