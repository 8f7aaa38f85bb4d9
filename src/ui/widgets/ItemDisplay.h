// How the items look on the screen: pictures, labels and captions.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "model/ItemId.h"

namespace tarvelin {

/// The groups of pictures, from left to right.
enum class Bildgruppe : std::uint8_t { Gebaeude, Forschung, Verteidigung, Raumschiffe };

struct Itemansicht {
    ItemId Item;
    /// Name of the picture; a drag carries it.
    std::string_view Bild;
    /// Name of the label that shows the level.
    std::string_view Stufenlabel;
    std::string_view Bildunterschrift;
    Bildgruppe Gruppe;
};

/// The twenty items.
[[nodiscard]] const PerItem<Itemansicht>& Itemansichten();

/// Exact compare; nothing for any other text.
[[nodiscard]] std::optional<ItemId> ItemVonBild(std::string_view bild);

}  // namespace tarvelin
