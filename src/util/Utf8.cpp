// UTF-8, whose bytes tell where a character begins.
#include "util/Utf8.h"

#include <array>

namespace tarvelin {

void AppendCodePoint(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0U | (character >> 6U));
        text += static_cast<char>(0x80U | (character & 0x3FU));
    } else {
        text += static_cast<char>(0xE0U | (character >> 12U));
        text += static_cast<char>(0x80U | ((character >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (character & 0x3FU));
    }
}

char32_t TakeCodePoint(std::string_view& rest) {
    constexpr char32_t kReplacement = 0xFFFD;
    constexpr char32_t kLargest = 0x10FFFF;
    const auto first = static_cast<unsigned char>(rest.front());
    rest.remove_prefix(1);
    if (first < 0x80) {
        return first;
    }
    const std::size_t following = first >= 0xF0 ? 3 : (first >= 0xE0 ? 2 : 1);
    if (first < 0xC2 || first > 0xF4 || rest.size() < following) {
        return kReplacement;
    }
    char32_t character = first & (0x3FU >> following);
    for (std::size_t i = 0; i < following; ++i) {
        const auto byte = static_cast<unsigned char>(rest[i]);
        if ((byte & 0xC0U) != 0x80U) {
            return kReplacement;
        }
        character = (character << 6U) | (byte & 0x3FU);
    }
    // A character written longer than it need be is none.
    constexpr std::array<char32_t, 4> kSmallest{0, 0x80, 0x800, 0x10000};
    if (character < kSmallest.at(following) || character > kLargest) {
        return kReplacement;
    }
    rest.remove_prefix(following);
    return character;
}

}  // namespace tarvelin
