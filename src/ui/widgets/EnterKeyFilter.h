// Which button Enter presses: the window's default one, or the one that Tab walked to.
#pragma once

#include <QAbstractButton>

namespace tarvelin {

/// Any press of the mouse in the window gives Enter to its default button, wherever the focus is,
/// until the focus moves by Tab.
class Entertaste : public QObject {
    Q_OBJECT

  public:
    /// For the window that `knopf` stands in.
    explicit Entertaste(QAbstractButton* knopf);

  protected:
    bool eventFilter(QObject* ziel, QEvent* event) override;

  private:
    [[nodiscard]] bool IstImFenster(const QObject* ziel) const;

    QAbstractButton* m_knopf;
    bool m_gehoertDemKnopf = false;
};

}  // namespace tarvelin
