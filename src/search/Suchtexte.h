// What a search came to, in words.
#pragma once

#include <string>

#include "model/Spielstand.h"
#include "plan/Auftragsliste.h"

namespace tarvelin {

/// Levels that one list has and the other lacks, "GM2 WS1"; empty for none.
[[nodiscard]] std::string Ueberschuss(const Auftragsliste& mehr, const Auftragsliste& weniger);

/// "Metall 120, Kristall 60, Deuterium 20", whole units.
[[nodiscard]] std::string ProStundeText(const Spielstand& stand);

}  // namespace tarvelin
