// The chunks of a wave file.
#include "ui/Wellendatei.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

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

/// Whole numbers as samples, in one or two channels, at a rate that a sound card knows.
bool IstGutesFormat(std::string_view chunk) {
    constexpr std::size_t kFormatlaenge = 16;
    constexpr std::uint32_t kLangsamste = 8000;
    constexpr std::uint32_t kSchnellste = 192000;
    if (chunk.size() < kFormatlaenge) {
        return false;
    }
    const auto art = Zahl(chunk, 0, 2);
    const auto kanaele = Zahl(chunk, 2, 2);
    const auto rate = Zahl(chunk, 4, 4);
    const auto bits = Zahl(chunk, 14, 2);
    return art == 1 && (kanaele == 1 || kanaele == 2) && rate >= kLangsamste &&
           rate <= kSchnellste && (bits == 8 || bits == 16 || bits == 32);
}

bool IstWelle(std::string_view bytes) {
    if (bytes.size() < kKopf || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") {
        return false;
    }
    bytes.remove_prefix(kKopf);
    bool formatGut = false;
    while (bytes.size() >= kChunkkopf) {
        const std::string_view name = bytes.substr(0, 4);
        const std::size_t laenge = Zahl(bytes, 4, 4);
        bytes.remove_prefix(kChunkkopf);
        if (laenge > bytes.size()) {
            return false;
        }
        if (name == "data") {
            return formatGut && laenge > 0;
        }
        formatGut = formatGut || (name == "fmt " && IstGutesFormat(bytes.substr(0, laenge)));
        // Chunks begin at even places.
        bytes.remove_prefix(std::min(laenge + laenge % 2, bytes.size()));
    }
    return false;
}

}  // namespace

bool IstSpielbar(const std::filesystem::path& datei) {
    constexpr std::uintmax_t kHoechstens = std::uintmax_t{64} << 20U;
    std::error_code fehler;
    if (!std::filesystem::is_regular_file(datei, fehler) ||
        std::filesystem::file_size(datei, fehler) > kHoechstens || fehler) {
        return false;
    }
    std::ifstream strom(datei, std::ios::binary);
    return IstWelle(std::string(std::istreambuf_iterator<char>(strom), {}));
}

}  // namespace tarvelin
