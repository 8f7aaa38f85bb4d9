// The task of a search: which orders, which goal, what must not move.
#pragma once

#include <cstddef>
#include <vector>

#include "model/ItemId.h"
#include "model/RunConditions.h"
#include "model/SimTime.h"
#include "plan/Order.h"

namespace tarvelin {

struct SearchTask {
    enum class Kind : std::uint8_t {
        /// A better sequence of the same orders.
        Sequence,
        /// The fastest way to `minLevels`, with any number of economy items.
        Goal,
    };

    Kind kind = Kind::Sequence;
    RunConditions conditions;
    /// The initial list; it keeps the rules.
    std::vector<Order> orders;
    /// For each order, whether it is pinned. For `Sequence` a pinned order keeps its row. For
    /// `Goal` rows shift, so pinned orders keep their sequence and have the same orders before
    /// them, not counting economy items.
    std::vector<bool> pinned;
    /// The number of orders at the head that count as played and stay.
    std::size_t headSize = 0;
    /// No order after the head may start earlier.
    SimTime notBefore;
    /// For `Goal`: levels and numbers to reach; of items outside the economy exactly these.
    PerItem<Byte> minLevels{};
};

/// The goal with everything that the rules require on the way.
[[nodiscard]] PerItem<Byte> WithPrerequisites(PerItem<Byte> goal);

/// Levels and numbers at the end of a list.
[[nodiscard]] PerItem<Byte> FinalLevels(const std::vector<Order>& orders);

}  // namespace tarvelin
