// The game's rules for what may be added to the build list.
#pragma once

#include <optional>
#include <string_view>

#include "model/ItemId.h"
#include "model/ItemTable.h"
#include "plan/OrderList.h"

namespace tarvelin {

/// The levels that an item needs in the rows above it.
[[nodiscard]] const LevelRequirements& ListRequirements(ItemId item);

/// Whether an item can be added to a list with these counters.
[[nodiscard]] bool IsAllowed(ItemId item, const PerItem<Byte>& listStufen);

/// Why an item can't be added to the list as it stands; nothing if it can. The rules count rows of
/// the list and nothing else; `GM`, `GK`, `GD` and `GS` have none.
[[nodiscard]] std::optional<std::string_view> Refusal(ItemId item, const OrderList& list);

}  // namespace tarvelin
