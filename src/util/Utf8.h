// UTF-8: characters of texts, and paths to and from it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarvelin {

/// Whether a byte continues a character instead of beginning one.
[[nodiscard]] constexpr bool IsContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Bytes of the first character of a text that isn't empty. A stray byte counts as a character.
[[nodiscard]] std::size_t FirstCharacterSize(std::string_view text);

/// Characters of a text, stray continuation bytes not counted.
[[nodiscard]] std::size_t CountCharacters(std::string_view text);

/// Appends a character up to U+FFFF. Surrogates are written like any other, in three bytes.
void AppendCodePoint(std::string& text, char32_t character);

/// Takes the first character off a text that isn't empty; a malformed byte gives U+FFFD.
/// A surrogate in three bytes is a character.
[[nodiscard]] char32_t TakeCodePoint(std::string_view& rest);

[[nodiscard]] std::string PathToUtf8(const std::filesystem::path& path);
[[nodiscard]] std::filesystem::path PathFromUtf8(std::string_view text);

}  // namespace tarvelin
