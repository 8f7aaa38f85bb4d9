// Settings of the toolkit.
#include "ui/bauteile/Aussehen.h"

#include <QFont>
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
    QFont schrift;
    schrift.setFamilies(
        {QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans Condensed")});
    constexpr int kSchriftPixel = 11;
    schrift.setPixelSize(kSchriftPixel);
    QApplication::setFont(schrift);
    QApplication::setApplicationName(QStringLiteral("Tarvelin"));
}

}  // namespace tarvelin
