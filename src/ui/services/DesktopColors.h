// Whether the desktop is light or dark.
#pragma once

#include <QObject>
#include <QPalette>

namespace tarvelin {

/// Follows what the desktop's theme gives the program at its start, and what the user has asked all
/// programs for in the settings of his desktop. At a change every window gets a
/// `QEvent::ThemeChange`.
class Desktopfarben : public QObject {
    Q_OBJECT

  public:
    /// `desThemas`: the toolkit's palette before the program set one of its own.
    explicit Desktopfarben(QPalette desThemas);

    [[nodiscard]] QPalette Farben() const;

  private:
    void Wuensche(bool dunkel);

    QPalette m_desThemas;
    bool m_dunkelGewuenscht = false;
};

}  // namespace tarvelin
