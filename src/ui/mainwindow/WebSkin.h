// Fetches a web skin, file by file.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/services/Environment.h"

namespace tarvelin {

struct SkinPicture {
    /// The folder within a skin, and the file without its ".gif".
    std::string_view folder;
    std::string_view name;
    /// Object name of the label that shows it.
    std::string_view pictureName;
};

/// The item pictures and four stock symbols, in the order in which they are fetched.
[[nodiscard]] const std::vector<SkinPicture>& SkinPictures();

/// A fetch is complete even if files were missing.
enum class WebSkinOutcome { Completed, Aborted };

/// Fetches every picture below `address` into the folder `destination`, deleting the old file
/// first. Asks the user whether to stop after each failure. Stops silently once `open` says that
/// the window has closed.
[[nodiscard]] WebSkinOutcome FetchWebSkin(const std::string& address,
                                          const std::filesystem::path& destination,
                                          const Environment& environment,
                                          const std::function<bool()>& open);

}  // namespace tarvelin
