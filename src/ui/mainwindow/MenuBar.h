// The menu bar, in which two entries may share a letter.
#pragma once

#include <QMenuBar>
#include <QPointer>

namespace tarvelin {

/// Alt and a letter that several entries share walks from one to the next; Enter then takes the one
/// that is marked. The toolkit alone would carry an entry out at once, which of them being chance.
class Menueleiste : public QMenuBar {
    Q_OBJECT

  public:
    explicit Menueleiste(QWidget* parent);

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* ziel, QEvent* event) override;

  private:
    void GibFokusZurueck();

    /// What had the focus before the bar took it.
    QPointer<QWidget> m_vorher;
};

}  // namespace tarvelin
