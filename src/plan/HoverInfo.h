// What an item's picture offers under the pointer: whether it can be dragged, and the tooltip.
#pragma once

#include <string>

#include "model/ItemId.h"
#include "model/RunConditions.h"
#include "plan/OrderList.h"

namespace tarvelin {

struct HoverInfo {
    /// Whether a press on the picture starts a drag.
    bool dragEnabled = true;
    /// What the next row of the item would cost, or why it can't be added.
    std::string tooltip;
};

/// The energy that a step of an item from `level` brings at full production, negative if it needs
/// some.
[[nodiscard]] double EnergyOfStep(ItemId item, Byte level, const RunConditions& conditions);

/// `conditions` are those of the last run or reset, as the satellites' energy depends on the
/// temperature.
[[nodiscard]] HoverInfo HoverInfoFor(ItemId item, const OrderList& list,
                                     const RunConditions& conditions);

}  // namespace tarvelin
