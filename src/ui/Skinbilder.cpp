// Loading of pictures.
#include "ui/Skinbilder.h"

#include <QPixmap>
#include <string>

#include "ui/Bauteile.h"
#include "ui/Fra_Skin.h"
#include "ui/Webskin.h"

namespace tarvelin {

namespace {

/// A pointer picture of 32 pixels, drawn for the screen's scale.
QPixmap LadeZeiger(const std::filesystem::path& datei, qreal skalierung) {
    constexpr int kSeite = 32;
    return LadeSymbol(datei).pixmap(QSize(kSeite, kSeite), skalierung);
}

}  // namespace

QPixmap LadePixmap(const std::filesystem::path& datei) {
    return {Pfadtext(datei)};
}

QIcon LadeSymbol(const std::filesystem::path& datei) {
    return QIcon(Pfadtext(datei));
}

Ziehzeiger LadeZiehzeiger(const std::filesystem::path& bilder, qreal skalierung) {
    const QPixmap offen = LadeZeiger(bilder / "handopen.ico", skalierung);
    return {.Offen = offen.isNull() ? QCursor(Qt::OpenHandCursor) : QCursor(offen),
            .Gezogen = LadeZeiger(bilder / "hand.ico", skalierung)};
}

void ApplySkin(Byte Mode, const std::string& Path, const QWidget& flaeche,
               const std::filesystem::path& programmordner) {
    const auto lade = [&flaeche](const char* name, const std::filesystem::path& datei) {
        const QPixmap bild = LadePixmap(datei);
        if (!bild.isNull()) {
            flaeche.findChild<QLabel*>(QString::fromLatin1(name))->setPixmap(bild);
        }
    };
    const auto bilder = programmordner / "img";
    lade("Images(4)", bilder / "summe.gif");
    if (Mode != kStandardskin && Mode != kLokalerSkin) {
        return;
    }
    // Whatever the name, the folder lies among the skins.
    auto ordner = bilder / "skins";
    ordner += "/" + (Mode == kStandardskin ? "standard" : Path);
    for (const Skinbild& bild : kSkinbilder) {
        lade(bild.Bild, ordner / bild.Ordner / (bild.Name + std::string(".gif")));
    }
}

}  // namespace tarvelin
