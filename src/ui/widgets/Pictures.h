// The pictures of the windows, as they lie in files.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <filesystem>

#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

/// The picture of a file, null if it can't be loaded.
[[nodiscard]] QPixmap LadePixmap(const std::filesystem::path& datei);

/// An icon file with all its sizes; null if it can't be loaded.
[[nodiscard]] QIcon LadeSymbol(const std::filesystem::path& datei);

/// The two hands of `bilder`, in pixels for a screen of this scale. A missing file leaves the
/// system's open hand, or the dragged picture itself.
[[nodiscard]] Ziehzeiger LadeZiehzeiger(const std::filesystem::path& bilder, qreal skalierung);

}  // namespace tarvelin
