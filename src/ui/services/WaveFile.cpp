// The chunks of a wave file.
#include "ui/services/WaveFile.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "persistence/FileSystem.h"

namespace tarvelin {

namespace {

constexpr std::size_t kKopf = 12;
constexpr std::size_t kChunkkopf = 8;

std::uint32_t Zahl(std::string_view bytes, std::size_t stelle, std::size_t laenge) {
    std::uint32_t wert = 0;
    for (std::size_t i = laenge; i-- > 0;) {
        wert = wert << 8U | static_cast<unsigned char>(bytes[stelle + i]);
    }
    return wert;
}

/// The format of a wave without its samples, as far as it is one of ours.
std::optional<Welle> LiesFormat(std::string_view chunk) {
    constexpr std::size_t kFormatlaenge = 16;
    constexpr std::uint32_t kLangsamste = 8000;
    constexpr std::uint32_t kSchnellste = 192000;
    if (chunk.size() < kFormatlaenge) {
        return std::nullopt;
    }
    const auto art = Zahl(chunk, 0, 2);
    const auto kanaele = Zahl(chunk, 2, 2);
    const auto rate = Zahl(chunk, 4, 4);
    const auto bits = Zahl(chunk, 14, 2);
    if (art != 1 || kanaele < 1 || kanaele > 2 || rate < kLangsamste || rate > kSchnellste ||
        (bits != 8 && bits != 16 && bits != 32)) {
        return std::nullopt;
    }
    return Welle{.Rate = static_cast<int>(rate),
                 .Kanaele = static_cast<int>(kanaele),
                 .Bits = static_cast<int>(bits),
                 .Abtastwerte = {}};
}

/// With the whole frames among the bytes.
std::optional<Welle> MitAbtastwerten(std::optional<Welle> welle, std::string_view bytes) {
    constexpr int kByte = 8;
    if (welle) {
        const auto rahmen = static_cast<std::size_t>(welle->Kanaele * welle->Bits / kByte);
        welle->Abtastwerte = bytes.substr(0, bytes.size() / rahmen * rahmen);
    }
    return welle && !welle->Abtastwerte.empty() ? welle : std::nullopt;
}

std::optional<Welle> AusBytes(std::string_view bytes) {
    if (bytes.size() < kKopf || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") {
        return std::nullopt;
    }
    bytes.remove_prefix(kKopf);
    std::optional<Welle> welle;
    while (bytes.size() >= kChunkkopf) {
        const std::string_view name = bytes.substr(0, 4);
        const std::size_t laenge = Zahl(bytes, 4, 4);
        bytes.remove_prefix(kChunkkopf);
        if (laenge > bytes.size()) {
            break;
        }
        if (name == "data") {
            return MitAbtastwerten(welle, bytes.substr(0, laenge));
        }
        if (name == "fmt ") {
            welle = LiesFormat(bytes.substr(0, laenge));
        }
        // Chunks begin at even places.
        bytes.remove_prefix(std::min(laenge + laenge % 2, bytes.size()));
    }
    return std::nullopt;
}

}  // namespace

std::optional<Welle> LiesWelle(const std::filesystem::path& datei) {
    constexpr std::size_t kHoechstens = std::size_t{64} << 20U;
    const auto bytes = ReadFileToString(datei, kHoechstens, NativeFileSystem());
    return bytes ? AusBytes(*bytes) : std::nullopt;
}

}  // namespace tarvelin
