// The pictures of the windows, as they lie in files.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <filesystem>

#include "ui/widgets/ItemPicture.h"

namespace tarvelin {

/// The picture of a file, null if it can't be loaded.
[[nodiscard]] QPixmap LoadPixmap(const std::filesystem::path& file);

/// An icon file with all its sizes; null if it can't be loaded.
[[nodiscard]] QIcon LoadIconFile(const std::filesystem::path& file);

/// The two hands of `pictures`, in pixels for a screen of this scale. A missing file leaves the
/// system's open hand, or the dragged picture itself.
[[nodiscard]] DragCursors LoadDragCursors(const std::filesystem::path& pictures, qreal scaling);

}  // namespace tarvelin
