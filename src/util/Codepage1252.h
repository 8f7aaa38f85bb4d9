// The bytes of the profile files, Windows-1252, to and from the UTF-8 of the program's texts.
#pragma once

#include <string>
#include <string_view>

namespace tarvelin {

/// Every byte has a character; the five that the code page leaves free keep their number.
[[nodiscard]] std::string From1252(std::string_view bytes);

/// A character that the code page doesn't have, and each byte of a text that isn't UTF-8, becomes
/// "?".
[[nodiscard]] std::string To1252(std::string_view utf8);

}  // namespace tarvelin
