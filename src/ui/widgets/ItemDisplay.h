// How the items look on the screen: pictures, labels and captions.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "model/ItemId.h"

namespace tarvelin {

/// From left to right.
enum class PictureGroup : std::uint8_t { Buildings, Research, Defense, Ships };

struct ItemDisplay {
    ItemId item;
    /// Object name of the picture; a drag carries it.
    std::string_view pictureName;
    /// Object name of the label that shows the level.
    std::string_view levelLabelName;
    std::string_view caption;
    PictureGroup group;
};

[[nodiscard]] const PerItem<ItemDisplay>& ItemDisplays();

/// Case counts. Nothing for any other name.
[[nodiscard]] std::optional<ItemId> ItemFromPicture(std::string_view picture);

}  // namespace tarvelin
