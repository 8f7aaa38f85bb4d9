// Shows the pictures of a skin.
#pragma once

#include <QWidget>
#include <filesystem>
#include <string>

#include "util/Integers.h"

namespace tarvelin {

/// `Mode` is the source: the standard skin, or the local skin in the folder `Path`. With any other
/// mode only the symbol of the points is loaded, which all skins share. A missing picture leaves
/// the old one. The labels are children of `surface`.
void ApplySkin(Byte Mode, const std::string& Path, const QWidget& surface,
               const std::filesystem::path& programFolder);

}  // namespace tarvelin
