// The plan that outlasts a session, the one of the session before, and those that gave way.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "persistence/PlanFile.h"

namespace tarvelin {

/// Keeps the user's plan in `saves/autosave.tvf`, each time in one step. Before its first change in
/// a session the plan of the last one, if it has a row, goes to `saves/autosave-vorige.tvf` beside
/// it, or to `saves/autosave-vorige-2.tvf` if that can't be written. A plan that was opened by its
/// file and never changed doesn't: it lies in that file, and would drive out one that lies nowhere
/// else. A plan that gives way to another one within a session goes to `saves/ersetzt-1.tvf`, the
/// former ones move on, up to `-5`.
class Autosave {
  public:
    /// `system` must outlive it.
    explicit Autosave(const std::filesystem::path& programFolder,
                      const FileSystem& system = NativeFileSystem());

    [[nodiscard]] const std::filesystem::path& PlanPath() const { return m_file; }
    /// All files that it writes.
    [[nodiscard]] std::vector<std::filesystem::path> AllPaths() const;

    /// Whether it moves or writes the file by itself, so that a plan isn't safe in it.
    [[nodiscard]] bool IsOwnFile(const std::filesystem::path& File) const;

    /// Tells that this plan lies in a file of its own.
    void MarkStoredInFile(const Plan& plan);

    /// Takes the plan for what is written.
    void MarkWritten(const Plan& plan);

    /// Writes the plan if it isn't the one that was written, or tried in vain, last.
    void WriteIfChanged(const Plan& plan);

    /// Writes the plan. False if it can't be written; the file is then as it was.
    bool Write(const Plan& plan);

    /// As `Write`, at the last chance: even if the former plan can't be kept.
    void WriteAtExit(const Plan& plan);

    /// Keeps a plan that is about to give way, unless it is empty or the one that gave way last.
    /// One that can't be written moves no other; where one can't be moved on, it takes the place
    /// that came free.
    void KeepReplaced(const Plan& plan) const;

  private:
    static constexpr std::size_t kReplaced = 5;

    [[nodiscard]] bool KeepPrevious(const IniFile& previous);
    bool Write(const Plan& plan, bool evenWithoutPrevious);
    /// From 1, the last one, to `kReplaced`; 0 is the one that is just written.
    [[nodiscard]] std::filesystem::path ReplacedPath(std::size_t number) const;
    /// Makes room at the first place, or as near to it as can be. The place.
    [[nodiscard]] std::size_t ShiftReplaced() const;

    std::filesystem::path m_file;
    /// The second takes the place of a first that can't be written.
    std::array<std::filesystem::path, 2> m_previous;
    const FileSystem& m_system;
    bool m_previousKept = false;
    /// The plan that was written or tried last, as a profile of its own.
    std::optional<std::string> m_lastWritten;
    /// The plan that lies in a file of its own, as a profile.
    std::optional<std::string> m_fromFile;
};

}  // namespace tarvelin
