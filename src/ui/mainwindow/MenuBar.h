// A menu bar whose entries may share a letter.
#pragma once

#include <QMenuBar>
#include <QPointer>

namespace tarvelin {

/// With a shared letter, Alt and the letter marks the next of its entries, and Enter activates it.
/// The toolkit alone would activate one of them at once, and which one isn't defined.
class MenuBar : public QMenuBar {
    Q_OBJECT

  public:
    explicit MenuBar(QWidget* parent);

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    void RestoreFocus();

    QPointer<QWidget> m_focusBefore;
};

}  // namespace tarvelin
