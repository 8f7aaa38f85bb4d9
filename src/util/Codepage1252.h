// Conversion between Windows-1252, the encoding of profile files, and UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace tarvelin {

/// Every byte gives a character; the five that the code page leaves undefined keep their value.
[[nodiscard]] std::string From1252(std::string_view bytes);

/// Characters outside the code page and malformed bytes become "?".
[[nodiscard]] std::string To1252(std::string_view utf8);

}  // namespace tarvelin
