// How a wait looks: a symbol and colors for each cause.
#pragma once

#include "model/Resource.h"
#include "model/Wait.h"
#include "ui/workbench/IconPaths.h"
#include "ui/workbench/WorkbenchColors.h"

namespace tarvelin {

struct WaitLook {
    Symbol symbol;
    Color symbolColor;
    Color ground;
    /// Of the lines on the ground; the same color where it has none.
    Color hatch;
};

/// No cause means that the order only waited for the row before it.
[[nodiscard]] WaitLook LookOf(const Delay& delay);

[[nodiscard]] WaitLook LookOf(Resource resource);

/// The wait of a row that only the click buffer holds back.
inline constexpr WaitLook kClickLook{Symbol::Click, Color::Weak, Color::RowTint, Color::RowTint};

}  // namespace tarvelin
