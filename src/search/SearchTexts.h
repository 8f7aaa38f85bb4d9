// What a search came to, in words.
#pragma once

#include <cstddef>
#include <string>

#include "model/GameState.h"
#include "plan/OrderList.h"

namespace tarvelin {

/// Levels that one list has and the other lacks, "GM2 WS1"; empty for none.
[[nodiscard]] std::string SurplusText(const OrderList& more, const OrderList& fewer);

/// The same for people: "4 x Metallmine, 1 x Raketenwerfer".
[[nodiscard]] std::string SurplusInWords(const OrderList& more, const OrderList& fewer);

/// "1 Sitzung", "2 Sitzungen".
[[nodiscard]] std::string CountText(std::size_t number, const char* singular, const char* plural);

/// "Metall 120, Kristall 60, Deuterium 20", whole units.
[[nodiscard]] std::string RatesText(const GameState& state);

}  // namespace tarvelin
