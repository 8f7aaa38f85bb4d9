// Files in 16-bit units and the 8-bit form in which their lines are handled.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvelin {

enum class ByteOrder : std::uint8_t { LittleEndian, BigEndian };

/// UTF-8 of each unit for itself, so that surrogates without their other half aren't lost: one to
/// three bytes for a unit, six for a pair. ASCII characters are bytes of their own. An odd byte at
/// the end is dropped.
[[nodiscard]] std::string FromUtf16(std::string_view bytes, ByteOrder byteOrder);

/// The bytes of such a text again. A character of four bytes, which that form doesn't have, becomes
/// U+FFFD.
[[nodiscard]] std::string ToUtf16(std::string_view text, ByteOrder byteOrder);

}  // namespace tarvelin
