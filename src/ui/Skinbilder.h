// The pictures of the window, as they lie in files.
#pragma once

#include <QIcon>
#include <QLabel>
#include <filesystem>
#include <string>

#include "ui/Itembild.h"

namespace tarvelin {

/// The picture of a file, null if it can't be loaded.
[[nodiscard]] QPixmap LadePixmap(const std::filesystem::path& datei);

/// An icon file with all its sizes; null if it can't be loaded.
[[nodiscard]] QIcon LadeSymbol(const std::filesystem::path& datei);

/// The two hands of `bilder`, in pixels for a screen of this scale. A missing file leaves the
/// system's open hand, or the dragged picture itself.
[[nodiscard]] Ziehzeiger LadeZiehzeiger(const std::filesystem::path& bilder, qreal skalierung);

/// Shows the skin of a source: the standard skin, or the local one in the folder `Path`; any other
/// mode shows none. The symbol of the points belongs to all of them. A picture that is missing
/// leaves the one before. The labels lie below `flaeche`.
void ApplySkin(Byte Mode, const std::string& Path, const QWidget& flaeche,
               const std::filesystem::path& programmordner);

}  // namespace tarvelin
