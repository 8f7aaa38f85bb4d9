// Encoding and decoding of UTF-8.
#include "util/Utf8.h"

#include <algorithm>
#include <array>

namespace tarvelin {

std::size_t FirstCharacterSize(std::string_view text) {
    constexpr unsigned char kFirstLead = 0xC0;
    if (static_cast<unsigned char>(text.front()) < kFirstLead) {
        return 1;
    }
    std::size_t n = 1;
    while (n < text.size() && IsContinuation(text[n])) {
        ++n;
    }
    return n;
}

std::size_t CountCharacters(std::string_view text) {
    return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, IsContinuation));
}

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
        if (!IsContinuation(rest[i])) {
            return kReplacement;
        }
        character = (character << 6U) | (static_cast<unsigned char>(rest[i]) & 0x3FU);
    }
    // Overlong forms are malformed.
    constexpr std::array<char32_t, 4> kSmallest{0, 0x80, 0x800, 0x10000};
    if (character < kSmallest.at(following) || character > kLargest) {
        return kReplacement;
    }
    rest.remove_prefix(following);
    return character;
}

std::string PathToUtf8(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::filesystem::path PathFromUtf8(std::string_view text) {
    return std::u8string(text.begin(), text.end());
}

}  // namespace tarvelin
