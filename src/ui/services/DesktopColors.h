// The desktop's colors, light or dark.
#pragma once

#include <QObject>
#include <QPalette>

namespace tarvelin {

/// Whether windows in these colors are darker than the text on them.
[[nodiscard]] bool IsDark(const QPalette& palette);

/// Combines the theme's palette at the program's start with the desktop's setting for light or dark
/// windows. When the setting changes every window gets a `QEvent::ThemeChange`.
class DesktopColors : public QObject {
    Q_OBJECT

  public:
    /// `themePalette` is the toolkit's palette before the program sets its own.
    explicit DesktopColors(QPalette themePalette);

    [[nodiscard]] QPalette CurrentPalette() const;

  private:
    void Prefer(bool dark);

    QPalette m_themePalette;
    bool m_darkPreferred = false;
};

}  // namespace tarvelin
