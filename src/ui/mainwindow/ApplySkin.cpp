// Pictures of a skin and their labels.
#include "ui/mainwindow/ApplySkin.h"

#include <QLabel>
#include <QPixmap>
#include <string>

#include "ui/mainwindow/Fra_Skin.h"
#include "ui/mainwindow/WebSkin.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/Pictures.h"

namespace tarvelin {

void ApplySkin(Byte Mode, const std::string& Path, const QWidget& flaeche,
               const std::filesystem::path& programmordner) {
    const auto lade = [&flaeche](std::string_view name, const std::filesystem::path& datei) {
        const QPixmap bild = LoadPixmap(datei);
        if (!bild.isNull()) {
            flaeche.findChild<QLabel*>(ToQString(name))->setPixmap(bild);
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
    for (const Skinbild& bild : Skinbilder()) {
        lade(bild.Bild, ordner / bild.Ordner / (std::string(bild.Name) + ".gif"));
    }
}

}  // namespace tarvelin
