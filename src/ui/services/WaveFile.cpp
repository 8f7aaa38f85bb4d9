// Parses the chunks of a wave file.
#include "ui/services/WaveFile.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "persistence/FileSystem.h"

namespace tarvelin {

namespace {

constexpr std::size_t kHeader = 12;
constexpr std::size_t kChunkHeader = 8;

std::uint32_t NumberAt(std::string_view bytes, std::size_t position, std::size_t length) {
    std::uint32_t value = 0;
    for (std::size_t i = length; i-- > 0;) {
        value = value << 8U | static_cast<unsigned char>(bytes[position + i]);
    }
    return value;
}

/// A wave without samples; nothing for formats that we don't play.
std::optional<Wave> ReadFormat(std::string_view chunk) {
    constexpr std::size_t kFormatLength = 16;
    constexpr std::uint32_t kSlowest = 8000;
    constexpr std::uint32_t kFastest = 192000;
    if (chunk.size() < kFormatLength) {
        return std::nullopt;
    }
    const auto kind = NumberAt(chunk, 0, 2);
    const auto channels = NumberAt(chunk, 2, 2);
    const auto rate = NumberAt(chunk, 4, 4);
    const auto bits = NumberAt(chunk, 14, 2);
    if (kind != 1 || channels < 1 || channels > 2 || rate < kSlowest || rate > kFastest ||
        (bits != 8 && bits != 16 && bits != 32)) {
        return std::nullopt;
    }
    return Wave{.rate = static_cast<int>(rate),
                .channels = static_cast<int>(channels),
                .bits = static_cast<int>(bits),
                .samples = {}};
}

/// Drops a partial frame at the end.
std::optional<Wave> WithSamples(std::optional<Wave> wave, std::string_view bytes) {
    constexpr int kByte = 8;
    if (wave) {
        const auto frame = static_cast<std::size_t>(wave->channels * wave->bits / kByte);
        wave->samples = bytes.substr(0, bytes.size() / frame * frame);
    }
    return wave && !wave->samples.empty() ? wave : std::nullopt;
}

std::optional<Wave> FromBytes(std::string_view bytes) {
    if (bytes.size() < kHeader || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") {
        return std::nullopt;
    }
    bytes.remove_prefix(kHeader);
    std::optional<Wave> wave;
    while (bytes.size() >= kChunkHeader) {
        const std::string_view name = bytes.substr(0, 4);
        const std::size_t length = NumberAt(bytes, 4, 4);
        bytes.remove_prefix(kChunkHeader);
        if (length > bytes.size()) {
            break;
        }
        if (name == "data") {
            return WithSamples(wave, bytes.substr(0, length));
        }
        if (name == "fmt ") {
            wave = ReadFormat(bytes.substr(0, length));
        }
        // Chunks are padded to an even length.
        bytes.remove_prefix(std::min(length + length % 2, bytes.size()));
    }
    return std::nullopt;
}

}  // namespace

std::optional<Wave> ReadWave(const std::filesystem::path& file) {
    constexpr std::size_t kMax = std::size_t{64} << 20U;
    const auto bytes = ReadFileToString(file, kMax, NativeFileSystem());
    return bytes ? FromBytes(*bytes) : std::nullopt;
}

}  // namespace tarvelin
