// Windows-1252: Latin 1 with 27 characters of its own from 0x80 to 0x9F.
#include "util/Codepage1252.h"

#include <algorithm>
#include <array>

#include "util/Utf8.h"

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

char Byte1252(char32_t zeichen) {
    if (zeichen < kErsterEigener || (zeichen >= kHinterEigenen && zeichen <= 0xFF)) {
        return static_cast<char>(zeichen);
    }
    const auto* const ort = std::ranges::find(kEigene, zeichen);
    return ort == kEigene.end()
               ? '?'
               : static_cast<char>(kErsterEigener + static_cast<unsigned>(ort - kEigene.begin()));
}

}  // namespace

std::string Aus1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char zeichen : bytes) {
        const auto byte = static_cast<unsigned char>(zeichen);
        const bool eigener = byte >= kErsterEigener && byte < kHinterEigenen;
        HaengeZeichenAn(text, eigener ? kEigene.at(byte - kErsterEigener) : byte);
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
