// What a row of the build list orders.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "model/ItemId.h"
#include "util/Ganzzahl.h"

namespace tarvelin {

/// Production factors of the metal, crystal and deuterium mine in tenths, from 0 to 10.
using Minenfaktoren = std::array<Byte, 3>;

inline constexpr Byte kVollerFaktor = 10;

/// The order queues.
enum class Schlange : std::uint8_t { Gebaeude, Werft, Forschung, Keine };

/// The `Tag` of a row, understood once when the row is made.
struct Auftrag {
    enum class Art : std::uint8_t { Unbekannt, Item, Produktion };

    Art Was = Art::Unbekannt;
    Schlange Queue = Schlange::Keine;
    ItemId Item{};
    Minenfaktoren Faktoren{};

    /// An item code, or a production row with three whole factors from 0 to 10; any other text
    /// gives an unknown order of the queue that its first letter names.
    static Auftrag AusTag(std::string_view tag);
};

/// The factors of a `Tag` that begins with "GX": its tokens 2, 3 and 4. Nothing if one of them is
/// no whole number from 0 to 10.
[[nodiscard]] std::optional<Minenfaktoren> LiesMinenfaktoren(std::string_view tag);

}  // namespace tarvelin
