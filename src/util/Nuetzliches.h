// Splitting and padding of texts, and texts for durations. All texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

#include "util/Integers.h"

namespace tarvelin {

/// The token number `Index`, counted from 1, of a separated list. A single leading separator is
/// skipped; an index outside the list gives an empty text. An empty separator means ":".
[[nodiscard]] std::string GetToken(std::string_view Text, int Index, std::string_view Separator);

/// The part before the first `Separator`; empty if there is none.
[[nodiscard]] std::string_view TextBefore(std::string_view Text, std::string_view Separator);

/// Everything after the first character (not all) of the first `Separator`; the whole text if there
/// is none.
[[nodiscard]] std::string_view TextAfter(std::string_view Text, std::string_view Separator);

/// Adds leading zeros to a number until `Count` characters precede its comma or end; zeros go
/// before a sign. Never cuts, and leaves a text that isn't a number alone.
[[nodiscard]] std::string PadIntegerDigits(std::string Text, int Count);

/// Adds trailing zeros to a number until it has `Count` decimals. Never cuts, and does nothing for
/// a text that isn't a number or a `Count` below 1.
[[nodiscard]] std::string PadDecimals(std::string Text, int Count);

/// Formats a duration. `Unit` is the unit of `Value`: "s", "m", "h" or "d"; any other gives an
/// empty text. `TopUnit` is the largest unit shown; larger amounts are counted in it. In `Format`
/// the fields dd d hh h mm m ss s become figures (doubled: at least two digits), and (0) " Tage ",
/// (1) "h ", (2) "m ", (3) "s ", (&) "und".
[[nodiscard]] std::string FormatDuration(Long Value, std::string_view Unit, std::string_view Format,
                                         std::string_view TopUnit);

}  // namespace tarvelin
