// Windows-1252: Latin 1 with 27 characters of its own from 0x80 to 0x9F.
#include "util/Codepage1252.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tarvelin {

namespace {

constexpr unsigned kErsterEigener = 0x80;

// clang-format off
constexpr std::array<char32_t, 32> kEigene{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
// clang-format on

constexpr unsigned kHinterEigenen = kErsterEigener + kEigene.size();

void HaengeUtf8An(std::string& text, char32_t zeichen) {
    if (zeichen < 0x80) {
        text += static_cast<char>(zeichen);
    } else if (zeichen < 0x800) {
        text += static_cast<char>(0xC0U | (zeichen >> 6U));
        text += static_cast<char>(0x80U | (zeichen & 0x3FU));
    } else {
        text += static_cast<char>(0xE0U | (zeichen >> 12U));
        text += static_cast<char>(0x80U | ((zeichen >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (zeichen & 0x3FU));
    }
}

char Byte1252(char32_t zeichen) {
    if (zeichen < kErsterEigener || (zeichen >= kHinterEigenen && zeichen <= 0xFF)) {
        return static_cast<char>(zeichen);
    }
    const auto* const ort = std::ranges::find(kEigene, zeichen);
    return ort == kEigene.end()
               ? '?'
               : static_cast<char>(kErsterEigener + static_cast<unsigned>(ort - kEigene.begin()));
}

/// Takes the first character off a text; a byte that begins none counts as U+FFFD.
char32_t NimmZeichen(std::string_view& rest) {
    constexpr char32_t kErsatz = 0xFFFD;
    const auto erstes = static_cast<unsigned char>(rest.front());
    rest.remove_prefix(1);
    if (erstes < 0x80) {
        return erstes;
    }
    const std::size_t folgende = erstes >= 0xF0 ? 3 : (erstes >= 0xE0 ? 2 : 1);
    if (erstes < 0xC2 || erstes > 0xF4 || rest.size() < folgende) {
        return kErsatz;
    }
    char32_t zeichen = erstes & (0x3FU >> folgende);
    for (std::size_t i = 0; i < folgende; ++i) {
        const auto byte = static_cast<unsigned char>(rest[i]);
        if ((byte & 0xC0U) != 0x80U) {
            return kErsatz;
        }
        zeichen = (zeichen << 6U) | (byte & 0x3FU);
    }
    // A character written longer than it need be is none.
    constexpr std::array<char32_t, 4> kKleinste{0, 0x80, 0x800, 0x10000};
    if (zeichen < kKleinste.at(folgende)) {
        return kErsatz;
    }
    rest.remove_prefix(folgende);
    return zeichen;
}

}  // namespace

std::string Aus1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char zeichen : bytes) {
        const auto byte = static_cast<unsigned char>(zeichen);
        const bool eigener = byte >= kErsterEigener && byte < kHinterEigenen;
        HaengeUtf8An(text, eigener ? kEigene.at(byte - kErsterEigener) : byte);
    }
    return text;
}

std::string Nach1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        bytes += Byte1252(NimmZeichen(utf8));
    }
    return bytes;
}

}  // namespace tarvelin
