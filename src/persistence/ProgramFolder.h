// Chooses the folder with the program's files: its own, or one of the user.
#pragma once

#include <filesystem>
#include <vector>

#include "persistence/FileSystem.h"

namespace tarvelin {

/// The folder of `config.cfg`, `saves`, `img`, `mfx` and `openings` for this start.
struct ProgramFolder {
    std::filesystem::path path;
    /// Whether plans and settings can be kept there. If not, nothing in it may be changed.
    bool canKeep = true;

    /// What must not be written: everything if nothing can be kept; configuration and autosave if
    /// another instance uses them.
    [[nodiscard]] std::vector<std::filesystem::path> ReadOnlyPaths(bool heldByOther) const;
};

/// Where file dialogs start: `saves` in the program's folder, created if missing, else the nearest
/// existing folder above it. Never the current directory.
[[nodiscard]] std::filesystem::path PlanFolder(const std::filesystem::path& programFolder,
                                               const FileSystem& system);

/// The folder of the running program if it contains `img` and is writable. Otherwise `userFolder`
/// (empty if the user has none), after copying our missing files into it from the program's folder,
/// or from `share/tarvelin` beside the program's `bin`; the starter plan only while there is no
/// configuration. If that folder can't be made or has no room for them, and holds no plan, our
/// files are used where they are. Nothing else is ever written.
[[nodiscard]] ProgramFolder ResolveProgramFolder(const std::filesystem::path& programFolder,
                                                 const std::filesystem::path& userFolder);

}  // namespace tarvelin
