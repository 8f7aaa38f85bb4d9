// Plans in save files.
#pragma once

#include <filesystem>
#include <string>

#include "model/RunConditions.h"
#include "persistence/IniFile.h"
#include "plan/Plan.h"
#include "util/Message.h"

namespace tarvelin {

/// Writes a plan into a profile: the start parameters as typed, the rows by their `Tag`s, the sleep
/// windows by their texts. Rows of a longer plan that the profile held stay behind, unread.
void SchreibePlan(const Plan& plan, Profil& profil);

/// The same into a file, in one step. False if it can't be written; the file is then as it was.
[[nodiscard]] bool SaveBauliste(const std::filesystem::path& File, const Plan& plan,
                                const Dateisystem& system = Platte());

/// Whether a profile holds a plan with at least one row.
[[nodiscard]] bool HatZeilen(const Profil& profil);

/// What a player reads when a file holds no plan, and when his plan can't be written into one.
[[nodiscard]] Message Ladefehler();
[[nodiscard]] Message Speicherfehler();

/// What keeps a profile from being a plan, for people: "Zeile 12, KlickPuffer: -5 ist keine Zahl
/// von 0 bis 600". Empty for one that is a plan.
[[nodiscard]] std::string Ladehindernis(const Profil& profil);
/// The same of a file, which may be none.
[[nodiscard]] std::string Ladehindernis(const std::filesystem::path& File,
                                        const Dateisystem& system = Platte());

/// Takes a plan from a profile. The former plan is gone at once. At the first value that can't be
/// used the reading stops with a message: what was read up to there stays, and false comes back.
/// Rows are replayed without a look at the game's rules; their factor texts follow the temperature
/// of `bedingungen`, those of the last run or reset.
[[nodiscard]] bool LadePlan(const Profil& profil, Plan& plan, const RunConditions& bedingungen,
                            MessageSink& meldungen);

/// The window's caption for a loaded plan.
[[nodiscard]] std::string FenstertitelMit(const std::filesystem::path& File);

}  // namespace tarvelin
