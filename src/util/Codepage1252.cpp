// Windows-1252: Latin 1, except for 27 characters from 0x80 to 0x9F.
#include "util/Codepage1252.h"

#include <algorithm>
#include <array>

#include "util/Utf8.h"

namespace tarvelin {

namespace {

constexpr unsigned kFirstOwn = 0x80;

// clang-format off
constexpr std::array<char32_t, 32> kOwn{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
// clang-format on

constexpr unsigned kBehindOwn = kFirstOwn + kOwn.size();

char Byte1252(char32_t character) {
    if (character < kFirstOwn || (character >= kBehindOwn && character <= 0xFF)) {
        return static_cast<char>(character);
    }
    const auto* const position = std::ranges::find(kOwn, character);
    return position == kOwn.end()
               ? '?'
               : static_cast<char>(kFirstOwn + static_cast<unsigned>(position - kOwn.begin()));
}

}  // namespace

std::string From1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        const bool own = byte >= kFirstOwn && byte < kBehindOwn;
        AppendCodePoint(text, own ? kOwn.at(byte - kFirstOwn) : byte);
    }
    return text;
}

std::string To1252(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        bytes += Byte1252(TakeCodePoint(utf8));
    }
    return bytes;
}

}  // namespace tarvelin
