// Whether a sound file is one that can be played.
#pragma once

#include <filesystem>

namespace tarvelin {

/// A wave file with its format and all of its samples, of at most 64 MiB: whole numbers of 8, 16 or
/// 32 bits, one or two channels, 8,000 to 192,000 a second. The toolkit's player would stay silent
/// over a broken one, and hang at the next, and divide by nothing at a very slow one.
[[nodiscard]] bool IstSpielbar(const std::filesystem::path& datei);

}  // namespace tarvelin
