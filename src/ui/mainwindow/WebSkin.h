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
struct SkinPicture {
    /// The folder in a skin, and the file there without its ".gif".
    std::string_view folder;
    std::string_view name;
    /// The label that shows it.
    std::string_view pictureName;
};

/// The pictures of the items and four stock symbols, in the order of a fetch.
[[nodiscard]] const std::vector<SkinPicture>& SkinPictures();

/// Whether a fetch went through to its end, whatever files it brought.
enum class WebSkinOutcome { Completed, Aborted };

/// Fetches every picture from below `address` into the folder `destination`. A former file goes
/// before its fetch. For each one that doesn't come the user is asked whether to stop. `open` tells
/// whether the window still stands; the fetch ends without a word when it doesn't.
[[nodiscard]] WebSkinOutcome FetchWebSkin(const std::string& address,
                                          const std::filesystem::path& destination,
                                          const Environment& environment,
                                          const std::function<bool()>& open);

}  // namespace tarvelin
