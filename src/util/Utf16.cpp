// 16-bit units of either byte order.
#include "util/Utf16.h"

#include <utility>

#include "util/Utf8.h"

namespace tarvelin {

std::string AusUtf16(std::string_view bytes, Bytefolge folge) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        auto niedrig = static_cast<unsigned char>(bytes[i]);
        auto hoch = static_cast<unsigned char>(bytes[i + 1]);
        if (folge == Bytefolge::GrossesEndeVorn) {
            std::swap(niedrig, hoch);
        }
        HaengeZeichenAn(text, hoch * 0x100U + niedrig);
    }
    return text;
}

std::string NachUtf16(std::string_view text, Bytefolge folge) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    while (!text.empty()) {
        const char32_t zeichen = NimmZeichen(text);
        const char32_t einheit = zeichen > 0xFFFF ? 0xFFFD : zeichen;
        const auto niedrig = static_cast<char>(einheit & 0xFFU);
        const auto hoch = static_cast<char>(einheit >> 8U);
        bytes += folge == Bytefolge::KleinesEndeVorn ? niedrig : hoch;
        bytes += folge == Bytefolge::KleinesEndeVorn ? hoch : niedrig;
    }
    return bytes;
}

}  // namespace tarvelin
