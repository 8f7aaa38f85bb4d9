// Loading of pictures.
#include "ui/widgets/Pictures.h"

#include "ui/widgets/Controls.h"

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

}  // namespace tarvelin
