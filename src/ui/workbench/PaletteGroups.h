// The items as the workbench groups them, and their names in two lines.
#pragma once

#include <array>
#include <span>

#include "model/ItemId.h"

namespace tarvelin {

struct PaletteGroup {
    const char* caption;
    std::span<const ItemId> items;
};

[[nodiscard]] const std::array<PaletteGroup, 4>& PaletteGroups();

/// The two lines, with a line feed between them.
[[nodiscard]] const char* TwoLineName(ItemId item);

}  // namespace tarvelin
