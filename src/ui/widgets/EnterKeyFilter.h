// Decides which button Enter presses: the window's default button or the one Tab has moved to.
#pragma once

#include <QAbstractButton>

namespace tarvelin {

/// After a mouse press in the window Enter presses the default button, wherever the focus is, until
/// the focus moves by Tab.
class EnterKeyFilter : public QObject {
    Q_OBJECT

  public:
    /// `button` is its window's default button, and becomes the owner.
    explicit EnterKeyFilter(QAbstractButton* button);

  protected:
    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    [[nodiscard]] bool IsInWindow(const QObject* target) const;

    QAbstractButton* m_button;
    bool m_belongsToButton = false;
};

}  // namespace tarvelin
