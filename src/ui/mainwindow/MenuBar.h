// The menu bar, in which two entries may share a letter.
#pragma once

#include <QMenuBar>
#include <QPointer>

namespace tarvelin {

/// Alt and a letter that several entries share walks from one to the next; Enter then takes the one
/// that is marked. The toolkit alone would carry an entry out at once, which of them being chance.
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

    /// What had the focus before the bar took it.
    QPointer<QWidget> m_focusBefore;
};

}  // namespace tarvelin
