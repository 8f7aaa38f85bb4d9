// Reads the samples of a wave file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace tarvelin {

/// Samples are integers: unsigned with 8 bits, signed with 16 or 32.
struct Wave {
    /// Frames per second, 8,000 to 192,000.
    int rate = 0;
    /// One or two.
    int channels = 0;
    int bits = 0;
    /// At least one frame; no partial ones.
    std::string samples;
};

/// Nothing for other formats, truncated files, and files above 64 MiB.
[[nodiscard]] std::optional<Wave> ReadWave(const std::filesystem::path& file);

}  // namespace tarvelin
