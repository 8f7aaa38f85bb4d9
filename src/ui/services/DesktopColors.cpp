// Light or dark.
#include "ui/services/DesktopColors.h"

#include <QApplication>
#include <QWidget>
#include <utility>

#include "ui/services/ColorScheme.h"

namespace tarvelin {

namespace {

bool IstDunkel(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

/// For a desktop that asks for dark windows and has no theme for the toolkit.
QPalette DunklePalette() {
    const QColor grund(53, 53, 53);
    const QColor feld(35, 35, 35);
    const QColor blass(127, 127, 127);
    const QColor auswahl(42, 130, 218);
    QPalette palette(Qt::white, grund, grund.lighter(), feld, blass, Qt::white, Qt::white, feld,
                     grund);
    palette.setColor(QPalette::AlternateBase, grund);
    palette.setColor(QPalette::ToolTipBase, grund);
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::Highlight, auswahl);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, auswahl);
    for (const auto rolle : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
        palette.setColor(QPalette::Disabled, rolle, blass);
    }
    return palette;
}

}  // namespace

Desktopfarben::Desktopfarben(QPalette desThemas) : m_desThemas(std::move(desThemas)) {
    BeobachteFarbwunsch(this, [this](bool dunkel) { Wuensche(dunkel); });
}

QPalette Desktopfarben::Farben() const {
    return m_dunkelGewuenscht && !IstDunkel(m_desThemas) ? DunklePalette() : m_desThemas;
}

void Desktopfarben::Wuensche(bool dunkel) {
    if (m_dunkelGewuenscht == dunkel) {
        return;
    }
    m_dunkelGewuenscht = dunkel;
    for (QWidget* const fenster : QApplication::topLevelWidgets()) {
        QCoreApplication::postEvent(fenster, new QEvent(QEvent::ThemeChange));
    }
}

}  // namespace tarvelin
