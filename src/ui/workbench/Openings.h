// The openings that ship with the program: plans to begin with.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "model/ItemId.h"

namespace tarvelin {

/// Figures aren't here: they are those of the plan's run.
struct Opening {
    /// The name of its plan in the folder `openings`.
    std::string_view file;
    std::string_view title;
    std::string_view description;
    /// What it is good for; shown with the level or number that the plan reaches.
    std::array<ItemId, 3> highlights;
};

[[nodiscard]] std::span<const Opening> Openings();

}  // namespace tarvelin
