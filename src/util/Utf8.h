// Texts of the program, character by character.
#pragma once

#include <string>
#include <string_view>

namespace tarvelin {

/// Appends a character up to U+FFFF. A surrogate is taken for one, in three bytes.
void AppendCodePoint(std::string& text, char32_t character);

/// Takes the first character off a text that isn't empty; a byte that begins none counts as
/// U+FFFD. A surrogate in three bytes is a character.
[[nodiscard]] char32_t TakeCodePoint(std::string_view& rest);

}  // namespace tarvelin
