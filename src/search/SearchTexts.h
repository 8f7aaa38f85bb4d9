// What a search came to, in words.
#pragma once

#include <cstddef>
#include <string>

#include "model/GameState.h"
#include "plan/OrderList.h"

namespace tarvelin {

/// Levels that one list has and the other lacks, "GM2 WS1"; empty for none.
[[nodiscard]] std::string Ueberschuss(const OrderList& mehr, const OrderList& weniger);

/// The same for people: "4 x Metallmine, 1 x Raketenwerfer".
[[nodiscard]] std::string UeberschussInWorten(const OrderList& mehr, const OrderList& weniger);

/// "1 Sitzung", "2 Sitzungen".
[[nodiscard]] std::string Anzahltext(std::size_t zahl, const char* einzahl, const char* mehrzahl);

/// "Metall 120, Kristall 60, Deuterium 20", whole units.
[[nodiscard]] std::string ProStundeText(const GameState& stand);

}  // namespace tarvelin
