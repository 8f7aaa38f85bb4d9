// Small helpers for texts that every other room leans on. They keep no state. Texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

#include "util/Integers.h"

namespace tarvelin {

/// The token at place `Index`, from 1, of a list whose tokens stand between separators. One
/// leading separator makes no empty token; an index outside the list gives the empty text. An
/// empty separator means ":".
[[nodiscard]] std::string GetToken(std::string_view Text, int Index, std::string_view Separator);

/// The part in front of the first `Separator`; empty if it doesn't occur.
[[nodiscard]] std::string_view TextBefore(std::string_view Text, std::string_view Separator);

/// All behind the first character of the first `Separator`; the whole text if it doesn't occur.
[[nodiscard]] std::string_view TextAfter(std::string_view Text, std::string_view Separator);

/// A number text with leading zeros, until `Count` characters stand in front of its comma or end;
/// the zeros go in front of a sign. Other texts stay as they are, and nothing is ever cut.
[[nodiscard]] std::string PadIntegerDigits(std::string Text, int Count);

/// A number text with trailing zeros, until `Count` characters stand behind its comma. Other texts
/// stay as they are, as does any text for a `Count` below 1, and nothing is ever cut.
[[nodiscard]] std::string PadDecimals(std::string Text, int Count);

/// An amount of time as text. `Unit` is the unit of `Value`: "s", "m", "h" or "d" (another one
/// gives the empty text). `TopUnit` is the largest unit that takes part; time above it flows into
/// it. `Format` holds the fields dd d hh h mm m ss s (doubled: at least two digits) and the words
/// (0) " Tage ", (1) "h ", (2) "m ", (3) "s ", (&) "und".
[[nodiscard]] std::string FormatDuration(Long Value, std::string_view Unit, std::string_view Format,
                                         std::string_view TopUnit);

}  // namespace tarvelin
