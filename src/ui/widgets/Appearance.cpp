// Applies them to the toolkit.
#include "ui/widgets/Appearance.h"

#include <QDir>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QTranslator>

namespace tarvelin {

namespace {

/// The style's colors on a light desktop. Its standard palette turns dark on a dark desktop, and
/// our panels and pictures aren't made for that.
QPalette LightPalette() {
    const QColor background(239, 239, 239);
    const QColor half = background.darker(130);
    const QColor dark = background.darker(150);
    const QColor pale(190, 190, 190);
    QColor placeholder(Qt::black);
    placeholder.setAlphaF(0.5F);
    QPalette palette(Qt::black, background, background.lighter(150), dark, half, Qt::black,
                     Qt::white);
    palette.setColor(QPalette::Midlight, half.lighter(110));
    palette.setColor(QPalette::Shadow, dark.darker(135));
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, placeholder);
    palette.setColor(QPalette::Disabled, QPalette::Text, pale);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, pale);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, pale);
    palette.setColor(QPalette::Disabled, QPalette::Base, background);
    palette.setColor(QPalette::Disabled, QPalette::Dark, QColor(209, 209, 209).darker(110));
    palette.setColor(QPalette::Disabled, QPalette::Shadow, dark.darker(135).lighter(150));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(145, 145, 145));
    return palette;
}

}  // namespace

void ApplyAppearance(QApplication& program) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto* const german = new QTranslator(&program);
    if (german->load(QStringLiteral("qtbase_de"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(german);
    }
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(LightPalette());
    // Fonts built into the program, for systems without them.
    for (const QFileInfo& file : QDir(QStringLiteral(":/fonts")).entryInfoList()) {
        QFontDatabase::addApplicationFont(file.filePath());
    }
    QFont font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans Condensed")});
    constexpr int kFontPixels = 11;
    font.setPixelSize(kFontPixels);
    QApplication::setFont(font);
    QApplication::setApplicationName(QStringLiteral("Tarvelin"));
}

QFont DesktopFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setFamilies(font.families() + QApplication::font().families());
    return font;
}

}  // namespace tarvelin
