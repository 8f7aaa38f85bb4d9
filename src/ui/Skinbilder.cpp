// File names of the pictures.
#include "ui/Skinbilder.h"

#include <QPixmap>
#include <array>

#include "ui/Bauteile.h"

namespace tarvelin {

namespace {

struct Skinbild {
    /// The folder in a skin, and the file there.
    const char* Ordner;
    const char* Datei;
    /// The label that shows it.
    const char* Bild;
};

// clang-format off
constexpr std::array<Skinbild, 24> kSkinbilder{{
    {"gebaeude", "1.gif", "ImgMetMine"},
    {"gebaeude", "2.gif", "ImgKrisMine"},
    {"gebaeude", "3.gif", "ImgDeutMine"},
    {"gebaeude", "4.gif", "ImgSKW"},
    {"gebaeude", "14.gif", "ImgRobo"},
    {"gebaeude", "21.gif", "ImgWerft"},
    {"gebaeude", "31.gif", "imgFolab"},
    {"gebaeude", "401.gif", "imgRakws"},
    {"gebaeude", "402.gif", "imglLasers"},
    {"gebaeude", "403.gif", "imgsLasers"},
    {"gebaeude", "212.gif", "imgSolsats"},
    {"gebaeude", "210.gif", "imgSpios"},
    {"gebaeude", "204.gif", "imgLJs"},
    {"gebaeude", "113.gif", "imgENTech"},
    {"gebaeude", "110.gif", "imgSchTech"},
    {"gebaeude", "115.gif", "imgVerbTech"},
    {"gebaeude", "120.gif", "imgLaserTech"},
    {"gebaeude", "106.gif", "imgSpioTech"},
    {"gebaeude", "202.gif", "imgKTs"},
    {"gebaeude", "407.gif", "imgklSchK"},
    {"images", "kristall.gif", "Images(1)"},
    {"images", "metall.gif", "Images(0)"},
    {"images", "deuterium.gif", "Images(2)"},
    {"images", "energie.gif", "Images(3)"},
}};
// clang-format on

QString AlsQString(const std::filesystem::path& datei) {
    return tarvelin::AlsQString(datei.native());
}

/// A pointer picture of 32 pixels, drawn for the screen's scale.
QPixmap LadeZeiger(const std::filesystem::path& datei, qreal skalierung) {
    constexpr int kSeite = 32;
    return LadeSymbol(datei).pixmap(QSize(kSeite, kSeite), skalierung);
}

}  // namespace

void LadeBild(QLabel& bild, const std::filesystem::path& datei) {
    const QPixmap neues = LadePixmap(datei);
    if (!neues.isNull()) {
        bild.setPixmap(neues);
    }
}

QPixmap LadePixmap(const std::filesystem::path& datei) {
    return QPixmap(AlsQString(datei));
}

QIcon LadeSymbol(const std::filesystem::path& datei) {
    return QIcon(AlsQString(datei));
}

Ziehzeiger LadeZiehzeiger(const std::filesystem::path& bilder, qreal skalierung) {
    const QPixmap offen = LadeZeiger(bilder / "handopen.ico", skalierung);
    return {.Offen = offen.isNull() ? QCursor(Qt::OpenHandCursor) : QCursor(offen),
            .Gezogen = LadeZeiger(bilder / "hand.ico", skalierung)};
}

void LadeStandardskin(const QWidget& flaeche, const std::filesystem::path& bilder) {
    LadeBild(*flaeche.findChild<QLabel*>(QStringLiteral("Images(4)")), bilder / "summe.gif");
    for (const Skinbild& bild : kSkinbilder) {
        LadeBild(*flaeche.findChild<QLabel*>(QString::fromLatin1(bild.Bild)),
                 bilder / "skins" / "standard" / bild.Ordner / bild.Datei);
    }
}

}  // namespace tarvelin
