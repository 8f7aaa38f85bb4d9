// Files in 16-bit units and the 8-bit form in which their lines are handled.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvelin {

enum class Bytefolge : std::uint8_t { KleinesEndeVorn, GrossesEndeVorn };

/// UTF-8 of each unit for itself, so that surrogates without their other half aren't lost: one to
/// three bytes for a unit, six for a pair. ASCII characters are bytes of their own. An odd byte at
/// the end is dropped.
[[nodiscard]] std::string AusUtf16(std::string_view bytes, Bytefolge folge);

/// The bytes of such a text again. A character of four bytes, which that form doesn't have, becomes
/// U+FFFD.
[[nodiscard]] std::string NachUtf16(std::string_view text, Bytefolge folge);

}  // namespace tarvelin
