// How a wait looks: a symbol, a hatching and colors for each cause.
#pragma once

#include <cstdint>
#include <span>

#include "model/Resource.h"
#include "model/Wait.h"
#include "simulation/RunTrace.h"
#include "ui/look/IconPaths.h"
#include "ui/look/WorkbenchColors.h"

namespace tarvelin {

/// The lines on a ground.
enum class Hatching : std::uint8_t { None, Rising, Falling, Crossed, Level, Upright, Dots };

struct WaitLook {
    Symbol symbol;
    /// A word for legends.
    const char* name;
    Hatching hatching;
    Color symbolColor;
    Color ground;
    /// Of the lines on the ground.
    Color hatch;
};

/// Of what an order waited for.
[[nodiscard]] WaitLook LookOf(const RunTrace& trace, const StartEvent& start);
/// Of a wait for a resource.
[[nodiscard]] WaitLook LookOf(Resource resource);

/// All that there are, in the sequence of a legend.
[[nodiscard]] std::span<const WaitLook> WaitLooks();

}  // namespace tarvelin
