// Where the program's files lie: beside it, or with the user.
#pragma once

#include <filesystem>
#include <vector>

#include "persistence/FileSystem.h"

namespace tarvelin {

/// The folder of `config.cfg`, `saves`, `img` and `mfx` for this start.
struct ProgramFolder {
    std::filesystem::path path;
    /// Whether the user's plans and settings can be kept there. Where they can't, nothing of it
    /// must be changed.
    bool canKeep = true;

    /// What of it must not be written: all where nothing can be kept, the configuration and the
    /// plan that outlasts a session where another program keeps them.
    [[nodiscard]] std::vector<std::filesystem::path> ReadOnlyPaths(bool heldByOther) const;
};

/// Where file dialogs begin: `saves` of the program's folder, made anew if it has gone; else the
/// nearest folder above it that is there. Never the current directory.
[[nodiscard]] std::filesystem::path PlanFolder(const std::filesystem::path& programFolder,
                                               const FileSystem& system);

/// It is the folder of the running program if `img` lies there and it can be written. Else it is
/// `userFolder` (empty where the user has none), to which the files of ours that are missing are
/// added, from the program's folder or from `share/tarvelin` beside the program's `bin`; the
/// starter plan only as long as no configuration lies there. If that folder can't be made or has no
/// room for them, and no plan lies in it, the files of ours serve where they are. No other place is
/// ever written.
[[nodiscard]] ProgramFolder ResolveProgramFolder(const std::filesystem::path& programFolder,
                                                 const std::filesystem::path& userFolder);

}  // namespace tarvelin
