// Keeps the current plan between sessions, the previous session's plan, and plans that were
// replaced.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "persistence/PlanFile.h"

namespace tarvelin {

/// Keeps the user's plan in `saves/autosave.tvf`, each time in one step. Before the first change of
/// a session the previous session's plan, unless empty, is copied to `saves/autosave-vorige.tvf`,
/// or to `saves/autosave-vorige-2.tvf` if that can't be written. A plan that was opened from a file
/// and never changed isn't: that file still holds it, and it would overwrite a plan that is nowhere
/// else. A plan that is replaced during a session goes to `saves/ersetzt-1.tvf`; earlier ones move
/// up, to `-5` at most.
class Autosave {
  public:
    /// `system` must outlive it.
    explicit Autosave(const std::filesystem::path& programFolder,
                      const FileSystem& system = NativeFileSystem());

    [[nodiscard]] const std::filesystem::path& PlanPath() const { return m_file; }
    /// All files that it may write.
    [[nodiscard]] std::vector<std::filesystem::path> AllPaths() const;

    /// Whether this is one of `AllPaths`, so that a plan saved there would be overwritten.
    [[nodiscard]] bool IsOwnFile(const std::filesystem::path& File) const;

    /// Notes that the user has this plan in a file of his own.
    void MarkStoredInFile(const Plan& plan);

    /// Notes the plan as written.
    void MarkWritten(const Plan& plan);

    /// Writes the plan unless it is the one of the last attempt, successful or not.
    void WriteIfChanged(const Plan& plan);

    /// False if the plan can't be written; the file is then unchanged.
    bool Write(const Plan& plan);

    /// As `Write`, but even if the previous session's plan can't be kept.
    void WriteAtExit(const Plan& plan);

    /// Keeps a plan that is about to be replaced, unless it is empty or equals the one kept last.
    /// If it can't be written, none of the others moves; if one of those can't be moved, it takes
    /// the number that became free.
    void KeepReplaced(const Plan& plan) const;

  private:
    static constexpr std::size_t kReplaced = 5;

    [[nodiscard]] bool KeepPrevious(const IniFile& previous);
    bool Write(const Plan& plan, bool evenWithoutPrevious);
    /// 1 is the latest, `kReplaced` the oldest; 0 is the one being written.
    [[nodiscard]] std::filesystem::path ReplacedPath(std::size_t number) const;
    /// Frees the lowest number it can, by moving the others up, and returns it.
    [[nodiscard]] std::size_t ShiftReplaced() const;

    std::filesystem::path m_file;
    /// The second is for when the first can't be written.
    std::array<std::filesystem::path, 2> m_previous;
    const FileSystem& m_system;
    bool m_previousKept = false;
    /// The plan of the last attempt, as the bytes of a profile of its own.
    std::optional<std::string> m_lastWritten;
    /// The plan that the user has in a file of his own, likewise.
    std::optional<std::string> m_fromFile;
};

}  // namespace tarvelin
