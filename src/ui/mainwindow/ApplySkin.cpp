// Loads the pictures of a skin into their labels.
#include "ui/mainwindow/ApplySkin.h"

#include <QPixmap>
#include <string>

#include "ui/mainwindow/Fra_Skin.h"
#include "ui/mainwindow/WebSkin.h"
#include "ui/widgets/Controls.h"
#include "ui/widgets/Pictures.h"

namespace tarvelin {

void ApplySkin(Byte Mode, const std::string& Path, const Fra_Rest& surface,
               const std::filesystem::path& programFolder) {
    const auto load = [&surface](std::string_view name, const std::filesystem::path& file) {
        const QPixmap picture = LoadPixmap(file);
        if (!picture.isNull()) {
            surface.Picture(name)->setPixmap(picture);
        }
    };
    const auto pictures = programFolder / "img";
    load("Images(4)", pictures / "summe.gif");
    if (Mode != kStandardSkin && Mode != kLocalSkin) {
        return;
    }
    // Appended as text, as `/` would let an absolute path replace the folder.
    auto folder = pictures / "skins";
    folder += "/" + (Mode == kStandardSkin ? "standard" : Path);
    for (const SkinPicture& picture : SkinPictures()) {
        load(picture.pictureName, folder / picture.folder / (std::string(picture.name) + ".gif"));
    }
}

}  // namespace tarvelin
