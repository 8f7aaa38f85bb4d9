// The pictures of the window, as they lie in files.
#pragma once

#include <QIcon>
#include <QLabel>
#include <filesystem>

#include "ui/Itembild.h"

namespace tarvelin {

/// Sets the picture of a file. A file that can't be loaded leaves the picture as it was.
void LadeBild(QLabel& bild, const std::filesystem::path& datei);

/// The picture of a file, null if it can't be loaded.
[[nodiscard]] QPixmap LadePixmap(const std::filesystem::path& datei);

/// An icon file with all its sizes; null if it can't be loaded.
[[nodiscard]] QIcon LadeSymbol(const std::filesystem::path& datei);

/// The two hands of `bilder`, in pixels for a screen of this scale. A missing file leaves the
/// system's open hand, or the dragged picture itself.
[[nodiscard]] Ziehzeiger LadeZiehzeiger(const std::filesystem::path& bilder, qreal skalierung);

/// The twenty item pictures and the four stock symbols of the standard skin, and the symbol of the
/// points, into the labels of these names below `flaeche`.
void LadeStandardskin(const QWidget& flaeche, const std::filesystem::path& bilder);

}  // namespace tarvelin
