// What is searched for.
#pragma once

#include <cstddef>
#include <vector>

#include "model/ItemId.h"
#include "model/RunConditions.h"
#include "model/SimTime.h"
#include "plan/Order.h"

namespace tarvelin {

/// A task of the search.
struct SearchTask {
    enum class Kind : std::uint8_t {
        /// The same orders in another order.
        Sequence,
        /// What has to stand at the end, by whatever economy.
        Goal,
    };

    Kind kind = Kind::Sequence;
    RunConditions conditions;
    /// The plan to begin with, by the rules of the list.
    std::vector<Order> orders;
    /// Rows that keep their place: as many as orders. In a search for an order a place is the
    /// number of a row; in one for a goal pinned rows keep their sequence and the orders before
    /// them that are no economy.
    std::vector<bool> pinned;
    /// So many rows at the head are played already.
    std::size_t headSize = 0;
    /// No other order may start before.
    SimTime notBefore;
    /// Goal: levels and numbers that have to stand at the end; of what is no economy exactly these.
    PerItem<Byte> minLevels{};
};

/// The goal with all that the rules of the list ask for on the way.
[[nodiscard]] PerItem<Byte> WithPrerequisites(PerItem<Byte> goal);

/// What a list brings to its end.
[[nodiscard]] PerItem<Byte> FinalLevels(const std::vector<Order>& orders);

}  // namespace tarvelin
