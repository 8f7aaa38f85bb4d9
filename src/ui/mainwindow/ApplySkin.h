// Shows the pictures of a skin.
#pragma once

#include <filesystem>
#include <string>

#include "ui/mainwindow/Fra_Rest.h"
#include "util/Integers.h"

namespace tarvelin {

/// `Mode` is the source: the standard skin, or the local skin in the folder `Path`. With any other
/// mode only the symbol of the points is loaded, which all skins share. A missing picture leaves
/// the old one.
void ApplySkin(Byte Mode, const std::string& Path, const Fra_Rest& surface,
               const std::filesystem::path& programFolder);

}  // namespace tarvelin
