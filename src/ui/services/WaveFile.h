// The sound in a wave file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace tarvelin {

/// Samples as whole numbers: unsigned ones of 8 bits, signed ones of 16 or 32.
struct Welle {
    /// Frames a second, 8,000 to 192,000.
    int Rate = 0;
    /// One or two.
    int Kanaele = 0;
    int Bits = 0;
    /// At least one frame, and whole ones only.
    std::string Abtastwerte;
};

/// Nothing if the file is no wave of the kinds above, lacks bytes, or has more than 64 MiB.
[[nodiscard]] std::optional<Welle> LiesWelle(const std::filesystem::path& datei);

}  // namespace tarvelin
