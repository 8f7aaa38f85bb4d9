// The sound in a wave file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace tarvelin {

/// Samples as whole numbers: unsigned ones of 8 bits, signed ones of 16 or 32.
struct Wave {
    /// Frames a second, 8,000 to 192,000.
    int rate = 0;
    /// One or two.
    int channels = 0;
    int bits = 0;
    /// At least one frame, and whole ones only.
    std::string samples;
};

/// Nothing if the file is no wave of the kinds above, lacks bytes, or has more than 64 MiB.
[[nodiscard]] std::optional<Wave> ReadWave(const std::filesystem::path& file);

}  // namespace tarvelin
