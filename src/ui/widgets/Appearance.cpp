// Settings of the toolkit.
#include "ui/widgets/Appearance.h"

#include <QDir>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QTranslator>

namespace tarvelin {

namespace {

/// The colours of the style on a light desktop. What it names its own is dark on a dark one, which
/// panels and pictures of ours aren't made for.
QPalette HellePalette() {
    const QColor grund(239, 239, 239);
    const QColor halb = grund.darker(130);
    const QColor dunkel = grund.darker(150);
    const QColor blass(190, 190, 190);
    QColor platzhalter(Qt::black);
    platzhalter.setAlphaF(0.5F);
    QPalette palette(Qt::black, grund, grund.lighter(150), dunkel, halb, Qt::black, Qt::white);
    palette.setColor(QPalette::Midlight, halb.lighter(110));
    palette.setColor(QPalette::Shadow, dunkel.darker(135));
    palette.setColor(QPalette::Highlight, QColor(48, 140, 198));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, platzhalter);
    palette.setColor(QPalette::Disabled, QPalette::Text, blass);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, blass);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, blass);
    palette.setColor(QPalette::Disabled, QPalette::Base, grund);
    palette.setColor(QPalette::Disabled, QPalette::Dark, QColor(209, 209, 209).darker(110));
    palette.setColor(QPalette::Disabled, QPalette::Shadow, dunkel.darker(135).lighter(150));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(145, 145, 145));
    return palette;
}

}  // namespace

void StelleAussehenEin(QApplication& programm) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto* const deutsch = new QTranslator(&programm);
    if (deutsch->load(QStringLiteral("qtbase_de"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(deutsch);
    }
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(HellePalette());
    // Those that the program itself brings along, for a system that has them not.
    for (const QFileInfo& datei : QDir(QStringLiteral(":/schriften")).entryInfoList()) {
        QFontDatabase::addApplicationFont(datei.filePath());
    }
    QFont schrift;
    schrift.setFamilies(
        {QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans Condensed")});
    constexpr int kSchriftPixel = 11;
    schrift.setPixelSize(kSchriftPixel);
    QApplication::setFont(schrift);
    QApplication::setApplicationName(QStringLiteral("Tarvelin"));
}

QFont Desktopschrift() {
    QFont schrift = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    schrift.setFamilies(schrift.families() + QApplication::font().families());
    return schrift;
}

}  // namespace tarvelin
