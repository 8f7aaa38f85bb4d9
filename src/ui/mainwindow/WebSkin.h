// The fetch of a web skin, file by file.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/services/Environment.h"

namespace tarvelin {

/// One of the pictures of a skin.
struct Skinbild {
    /// The folder in a skin, and the file there without its ".gif".
    std::string_view Ordner;
    std::string_view Name;
    /// The label that shows it.
    std::string_view Bild;
};

/// The pictures of the items and four stock symbols, in the order of a fetch.
[[nodiscard]] const std::vector<Skinbild>& Skinbilder();

/// Whether a fetch went through to its end, whatever files it brought.
enum class Webskinausgang { AmEnde, Abgebrochen };

/// Fetches every picture from below `adresse` into the folder `ziel`. A former file goes before its
/// fetch. For each one that doesn't come the user is asked whether to stop. `offen` tells whether
/// the window still stands; the fetch ends without a word when it doesn't.
[[nodiscard]] Webskinausgang HoleWebskin(const std::string& adresse,
                                         const std::filesystem::path& ziel,
                                         const Environment& umgebung,
                                         const std::function<bool()>& offen);

}  // namespace tarvelin
