// Reading and writing of plan files.
#pragma once

#include <filesystem>
#include <string>

#include "model/RunConditions.h"
#include "persistence/IniFile.h"
#include "plan/Plan.h"
#include "util/Message.h"

namespace tarvelin {

/// Writes a plan into a profile: start parameters and sleep windows as typed, rows as their `Tag`s.
/// Surplus rows of a longer plan in the profile stay there, unread.
void WritePlan(const Plan& plan, IniFile& profile);

/// The same into a file, in one step. False if it can't be written; the file is then unchanged.
[[nodiscard]] bool SaveBauliste(const std::filesystem::path& File, const Plan& plan,
                                const FileSystem& system = NativeFileSystem());

/// Whether a profile holds a plan with at least one row.
[[nodiscard]] bool HasRows(const IniFile& profile);

[[nodiscard]] Message LoadErrorMessage();
[[nodiscard]] Message SaveErrorMessage();

/// Why a profile can't be read as a plan, for the user: "Zeile 12, KlickPuffer: -5 ist keine Zahl
/// von 0 bis 600". Empty if it can.
[[nodiscard]] std::string LoadObstacle(const IniFile& profile);
/// The same for a file, which may be missing or unreadable.
[[nodiscard]] std::string LoadObstacle(const std::filesystem::path& File,
                                       const FileSystem& system = NativeFileSystem());

/// Reads a plan from a profile; the list is cleared first. Stops at the first unusable value: shows
/// a message, keeps what was read until then, and returns false. Rows are replayed without checking
/// the game's rules; their factor texts use the temperature of `conditions`, those of the last run
/// or reset.
[[nodiscard]] bool ReadPlan(const IniFile& profile, Plan& plan, const RunConditions& conditions,
                            MessageSink& messages);

}  // namespace tarvelin
