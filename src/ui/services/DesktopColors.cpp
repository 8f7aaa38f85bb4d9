// Chooses the palette and reports changes.
#include "ui/services/DesktopColors.h"

#include <QApplication>
#include <QWidget>
#include <utility>

#include "ui/services/ColorScheme.h"

namespace tarvelin {

namespace {

/// For a desktop that asks for dark windows but gives the toolkit no dark theme.
QPalette DarkPalette() {
    const QColor background(53, 53, 53);
    const QColor field(35, 35, 35);
    const QColor pale(127, 127, 127);
    const QColor chosen(42, 130, 218);
    QPalette palette(Qt::white, background, background.lighter(), field, pale, Qt::white, Qt::white,
                     field, background);
    palette.setColor(QPalette::AlternateBase, background);
    palette.setColor(QPalette::ToolTipBase, background);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::Highlight, chosen);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, chosen);
    for (const auto role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
        palette.setColor(QPalette::Disabled, role, pale);
    }
    return palette;
}

}  // namespace

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

DesktopColors::DesktopColors(QPalette themePalette) : m_themePalette(std::move(themePalette)) {
    WatchColorScheme(this, [this](bool dark) { Prefer(dark); });
}

QPalette DesktopColors::CurrentPalette() const {
    return m_darkPreferred && !IsDark(m_themePalette) ? DarkPalette() : m_themePalette;
}

void DesktopColors::Prefer(bool dark) {
    if (m_darkPreferred == dark) {
        return;
    }
    m_darkPreferred = dark;
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        QCoreApplication::postEvent(window, new QEvent(QEvent::ThemeChange));
    }
}

}  // namespace tarvelin
