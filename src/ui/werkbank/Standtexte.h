// What the workbench tells of a run, in words.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "simulation/Ablauf.h"

namespace tarvelin {

/// "Metallmine 3", "Kleine Schildkuppel", or "80% 100% 50%".
[[nodiscard]] std::string Auftragstext(const Startereignis& start);

/// "Mo 20.11. 12:30:05".
[[nodiscard]] std::string Zeittext(Zeitpunkt zeitpunkt);

/// All there is at a moment: stocks, rates, energy, levels.
[[nodiscard]] std::string Standtext(const Ablauf& ablauf, Moment moment);

/// By how much a plan has become longer: "+02:13:05", shorter: "-1 Tag 02:13:05", or neither:
/// "±00:00:00".
[[nodiscard]] std::string Aenderungstext(Long sekunden);

/// The first order that is still to be given, as long as the plan covers the moment: its name, when
/// and in how long. Nothing before the plan's start and behind its end.
[[nodiscard]] std::optional<std::string> NaechsterAuftrag(const Ablauf& ablauf, Zeitpunkt jetzt);

/// The messages of a run in one line; of many the first ones, and how many more.
[[nodiscard]] std::string Meldungszeile(const std::vector<Meldung>& meldungen);

}  // namespace tarvelin
