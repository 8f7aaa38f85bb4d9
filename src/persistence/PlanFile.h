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
void WritePlan(const Plan& plan, IniFile& profile);

/// The same into a file, in one step. False if it can't be written; the file is then as it was.
[[nodiscard]] bool SaveBauliste(const std::filesystem::path& File, const Plan& plan,
                                const FileSystem& system = NativeFileSystem());

/// Whether a profile holds a plan with at least one row.
[[nodiscard]] bool HasRows(const IniFile& profile);

/// What a player reads when a file holds no plan, and when his plan can't be written into one.
[[nodiscard]] Message LoadErrorMessage();
[[nodiscard]] Message SaveErrorMessage();

/// What keeps a profile from being a plan, for people: "Zeile 12, KlickPuffer: -5 ist keine Zahl
/// von 0 bis 600". Empty for one that is a plan.
[[nodiscard]] std::string LoadObstacle(const IniFile& profile);
/// The same of a file, which may be none.
[[nodiscard]] std::string LoadObstacle(const std::filesystem::path& File,
                                       const FileSystem& system = NativeFileSystem());

/// Takes a plan from a profile. The former plan is gone at once. At the first value that can't be
/// used the reading stops with a message: what was read up to there stays, and false comes back.
/// Rows are replayed without a look at the game's rules; their factor texts follow the temperature
/// of `conditions`, those of the last run or reset.
[[nodiscard]] bool ReadPlan(const IniFile& profile, Plan& plan, const RunConditions& conditions,
                            MessageSink& messages);

/// The window's caption for a loaded plan.
[[nodiscard]] std::string WindowTitleFor(const std::filesystem::path& File);

}  // namespace tarvelin
