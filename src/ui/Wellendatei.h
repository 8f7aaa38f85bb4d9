// Whether a sound file is one that can be played.
#pragma once

#include <filesystem>

namespace tarvelin {

/// A wave file with its format and all of its samples, of at most 64 MiB. The toolkit's player
/// would stay silent over a broken one, and hang at the next.
[[nodiscard]] bool IstSpielbar(const std::filesystem::path& datei);

}  // namespace tarvelin
