// Encoding and decoding of UTF-16 in either byte order.
#include "util/Utf16.h"

#include <utility>

#include "util/Utf8.h"

namespace tarvelin {

std::string FromUtf16(std::string_view bytes, ByteOrder byteOrder) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        auto low = static_cast<unsigned char>(bytes[i]);
        auto high = static_cast<unsigned char>(bytes[i + 1]);
        if (byteOrder == ByteOrder::BigEndian) {
            std::swap(low, high);
        }
        AppendCodePoint(text, high * 0x100U + low);
    }
    return text;
}

std::string ToUtf16(std::string_view text, ByteOrder byteOrder) {
    std::string bytes;
    bytes.reserve(2 * text.size());
    while (!text.empty()) {
        const char32_t character = TakeCodePoint(text);
        const char32_t unit = character > 0xFFFF ? 0xFFFD : character;
        const auto low = static_cast<char>(unit & 0xFFU);
        const auto high = static_cast<char>(unit >> 8U);
        bytes += byteOrder == ByteOrder::LittleEndian ? low : high;
        bytes += byteOrder == ByteOrder::LittleEndian ? high : low;
    }
    return bytes;
}

}  // namespace tarvelin
