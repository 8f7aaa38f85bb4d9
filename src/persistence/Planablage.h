// Plans in save files.
#pragma once

#include <filesystem>
#include <string>

#include "persistence/Profil.h"
#include "plan/Plan.h"
#include "simulation/Ergebnistexte.h"
#include "simulation/RunSimulation.h"
#include "util/Meldung.h"

namespace tarvelin {

/// Writes a plan into a profile: the start parameters as typed, the rows by their `Tag`s, the sleep
/// windows by their texts. Rows of a longer plan that the profile held stay behind, unread.
void SchreibePlan(const Plan& plan, Profil& profil);

/// The same into a file, in one step. False if it can't be written; the file is then as it was.
bool SaveBauliste(const std::filesystem::path& File, const Plan& plan);

/// What came of a load.
struct Ladeergebnis {
    /// The whole file was read, and the run was called.
    bool Geladen = false;
    /// The run got past its checks of the inputs.
    bool Gelaufen = false;
};

/// Takes a plan from a profile and runs it. The former plan is gone at once. At the first value
/// that can't be used the reading stops with a message: what was read up to there stays, and
/// nothing runs. Rows are replayed without a look at the game's rules.
Ladeergebnis LadePlan(const Profil& profil, bool Silent, Plan& plan, Lauf& lauf,
                      Ergebnistexte& texte, Meldungsausgabe& meldungen);

/// The same from a file. One that can't be opened and read gives the same message and leaves the
/// plan as it was.
Ladeergebnis LoadBauliste(const std::filesystem::path& File, bool Silent, Plan& plan, Lauf& lauf,
                          Ergebnistexte& texte, Meldungsausgabe& meldungen);

/// The window's caption for a loaded plan.
[[nodiscard]] std::string FenstertitelMit(const std::filesystem::path& File);

}  // namespace tarvelin
