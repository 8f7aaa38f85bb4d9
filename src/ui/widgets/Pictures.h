// Loads pictures from files.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <filesystem>

#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

/// Null if it can't be loaded.
[[nodiscard]] QPixmap LoadPixmap(const std::filesystem::path& file);

/// With all sizes in the file. Null if it can't be loaded.
[[nodiscard]] QIcon LoadIconFile(const std::filesystem::path& file);

/// The two hands in the folder `pictures`, for a screen of this scale. Where a file is missing, the
/// system's open hand and no dragged picture.
[[nodiscard]] DragCursors LoadDragCursors(const std::filesystem::path& pictures, qreal scaling);

}  // namespace tarvelin
