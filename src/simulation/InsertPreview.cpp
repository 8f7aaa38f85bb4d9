// Reads the tables at the levels that the rows above reach.
#include "simulation/InsertPreview.h"

#include "model/Cost.h"
#include "model/ItemTable.h"
#include "plan/HoverInfo.h"

namespace tarvelin {

InsertPreview PreviewOf(ItemId item, std::span<const Order> before,
                        const RunConditions& conditions) {
    GameState state;
    for (const Order& order : before) {
        if (order.kind == Order::Kind::Item) {
            state.Stufe[order.item] = Saturate<Byte>(state.Stufe[order.item] + 1);
        }
    }
    const Byte level = state.Stufe[item];
    const Cost& price = CostOf(item, level);
    return {.number = Saturate<Byte>(level + 1),
            .price = price,
            .seconds = RowOf(item).upgradeTime(price, state, conditions),
            .energy = EnergyOfStep(item, level, conditions)};
}

}  // namespace tarvelin
