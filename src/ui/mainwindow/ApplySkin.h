// The skin on the screen.
#pragma once

#include <QWidget>
#include <filesystem>
#include <string>

#include "util/Integers.h"

namespace tarvelin {

/// Shows the skin of a source: the standard skin, or the local one in the folder `Path`; any other
/// mode shows none. The symbol of the points belongs to all of them. A picture that is missing
/// leaves the one before. The labels lie below `surface`.
void ApplySkin(Byte Mode, const std::string& Path, const QWidget& surface,
               const std::filesystem::path& programFolder);

}  // namespace tarvelin
