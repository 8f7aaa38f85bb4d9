// Settings of the toolkit.
#include "ui/bauteile/Aussehen.h"

#include <QDir>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QStyle>
#include <QTranslator>

namespace tarvelin {

void StelleAussehenEin(QApplication& programm) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    auto* const deutsch = new QTranslator(&programm);
    if (deutsch->load(QStringLiteral("qtbase_de"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(deutsch);
    }
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setPalette(QApplication::style()->standardPalette());
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
