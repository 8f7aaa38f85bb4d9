// The codes of the build list and all names under which an item appears there.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "model/ItemId.h"
#include "util/Ganzzahl.h"

namespace tarvelin {

/// What the hover text of an item's picture says about energy.
enum class Energietext : Byte {
    Ohne,
    /// What the next level of a mine needs.
    Bedarf,
    /// What the next level of the power plant adds.
    Stufenertrag,
    /// What one satellite adds.
    Stueckertrag,
};

/// One row of the code table. Three vocabularies of names stand beside each other on purpose: the
/// list text, the caption under the picture and the name in the hover text.
struct ItemZeile {
    ItemId Item;
    /// `ItemCode`: the first letter is the order queue, G building, W shipyard, F research; the
    /// rest tells the item in it.
    std::string_view Code;
    std::string_view Bild;
    std::string_view Stufenlabel;
    std::string_view Listentext;
    std::string_view Bildunterschrift;
    std::string_view Hovername;
    Energietext Energie = Energietext::Ohne;
};

/// `Tag` of a production row: this, and the factors of metal, crystal and deuterium in tenths,
/// each behind a colon.
inline constexpr std::string_view kProduktionscode = "GX";

/// The twenty rows, in the order of the pictures on the window.
[[nodiscard]] const std::array<ItemZeile, kItemAnzahl>& ItemTabelle();

[[nodiscard]] const ItemZeile& ZeileVon(ItemId item);

/// Exact compare, with regard to case; nothing for any other text.
[[nodiscard]] std::optional<ItemId> ItemVonCode(std::string_view code);
[[nodiscard]] std::optional<ItemId> ItemVonBild(std::string_view bild);

}  // namespace tarvelin
