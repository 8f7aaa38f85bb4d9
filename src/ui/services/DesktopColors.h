// Whether the desktop is light or dark.
#pragma once

#include <QObject>
#include <QPalette>

namespace tarvelin {

/// Whether windows in these colors are darker than the text on them.
[[nodiscard]] bool IsDark(const QPalette& palette);

/// Follows what the desktop's theme gives the program at its start, and what the user has asked all
/// programs for in the settings of his desktop. At a change every window gets a
/// `QEvent::ThemeChange`.
class DesktopColors : public QObject {
    Q_OBJECT

  public:
    /// `themePalette`: the toolkit's palette before the program set one of its own.
    explicit DesktopColors(QPalette themePalette);

    [[nodiscard]] QPalette CurrentPalette() const;

  private:
    void Prefer(bool dark);

    QPalette m_themePalette;
    bool m_darkPreferred = false;
};

}  // namespace tarvelin
