// UTF-8, whose bytes tell where a character begins.
#include "util/Utf8.h"

#include <array>

namespace tarvelin {

void HaengeZeichenAn(std::string& text, char32_t zeichen) {
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

char32_t NimmZeichen(std::string_view& rest) {
    constexpr char32_t kErsatz = 0xFFFD;
    constexpr char32_t kGroesstes = 0x10FFFF;
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
    if (zeichen < kKleinste.at(folgende) || zeichen > kGroesstes) {
        return kErsatz;
    }
    rest.remove_prefix(folgende);
    return zeichen;
}

}  // namespace tarvelin
