// UTF-16 files, and the 8-bit form in which their lines are handled.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvelin {

enum class ByteOrder : std::uint8_t { LittleEndian, BigEndian };

/// Encodes each unit separately, so that unpaired surrogates survive: one to three bytes for a
/// unit, six for a surrogate pair. An odd byte at the end is dropped.
[[nodiscard]] std::string FromUtf16(std::string_view bytes, ByteOrder byteOrder);

/// The reverse. A four-byte character, which `FromUtf16` never makes, becomes U+FFFD.
[[nodiscard]] std::string ToUtf16(std::string_view text, ByteOrder byteOrder);

}  // namespace tarvelin
