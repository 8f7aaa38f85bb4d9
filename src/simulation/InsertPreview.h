// What an order would cost at a place in the list.
#pragma once

#include <span>

#include "model/Resource.h"
#include "model/RunConditions.h"
#include "plan/Order.h"

namespace tarvelin {

struct InsertPreview {
    /// The level or number that it would reach.
    Byte number = 0;
    Cost price{};
    /// Seconds, with the facilities of the rows before it.
    double seconds = 0;
    /// What it brings at full production, negative if it needs some.
    double energy = 0;
};

/// `before` are the orders above the place.
[[nodiscard]] InsertPreview PreviewOf(ItemId item, std::span<const Order> before,
                                      const RunConditions& conditions);

}  // namespace tarvelin
