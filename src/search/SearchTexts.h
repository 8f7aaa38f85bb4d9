// Texts for the orders, rates and numbers of a plan or a find.
#pragma once

#include <cstddef>
#include <string>

#include "model/GameState.h"
#include "plan/OrderList.h"

namespace tarvelin {

/// What `more` has beyond `fewer`, "GM2 WS1"; empty for nothing.
[[nodiscard]] std::string SurplusText(const OrderList& more, const OrderList& fewer);

/// The same with names: "4 x Metallmine, 1 x Raketenwerfer".
[[nodiscard]] std::string SurplusInWords(const OrderList& more, const OrderList& fewer);

/// "1 Sitzung", "2 Sitzungen".
[[nodiscard]] std::string CountText(std::size_t number, const char* singular, const char* plural);

/// "Metall 120, Kristall 60, Deuterium 20", in whole units per hour.
[[nodiscard]] std::string RatesText(const GameState& state);

}  // namespace tarvelin
