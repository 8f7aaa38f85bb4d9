// Writing of the autosave and of the plans kept beside it.
#include "persistence/Autosave.h"

#include <algorithm>

#include "persistence/AtomicWrite.h"

namespace tarvelin {

namespace {

constexpr const char* kSession = "Sitzung";
/// "1" if the user has the plan in a file of his own.
constexpr const char* kFromFile = "AusDatei";

bool IsFromFile(const IniFile& profile) {
    return profile.ReadINI(kSession, kFromFile, "0") == "1";
}

std::string ToBytes(const Plan& plan) {
    IniFile profile("");
    WritePlan(plan, profile);
    return profile.Bytes();
}

}  // namespace

Autosave::Autosave(const std::filesystem::path& programFolder, const FileSystem& system)
    : m_file(programFolder / "saves" / "autosave.tvf"),
      m_previous{programFolder / "saves" / "autosave-vorige.tvf",
                 programFolder / "saves" / "autosave-vorige-2.tvf"},
      m_system(system) {}

std::vector<std::filesystem::path> Autosave::AllPaths() const {
    std::vector<std::filesystem::path> files{m_file, m_previous[0], m_previous[1]};
    for (std::size_t i = 0; i <= kReplaced; ++i) {
        files.push_back(ReplacedPath(i));
    }
    return files;
}

bool Autosave::IsOwnFile(const std::filesystem::path& File) const {
    // Links and relative paths name the same files.
    const auto resolved = m_system.Resolve(File);
    return std::ranges::any_of(
        AllPaths(), [&](const auto& own) { return resolved && resolved == m_system.Resolve(own); });
}

void Autosave::MarkStoredInFile(const Plan& plan) {
    m_fromFile = ToBytes(plan);
}

void Autosave::MarkWritten(const Plan& plan) {
    m_lastWritten = ToBytes(plan);
}

void Autosave::WriteIfChanged(const Plan& plan) {
    if (m_lastWritten != ToBytes(plan)) {
        Write(plan);
    }
}

bool Autosave::Write(const Plan& plan) {
    return Write(plan, false);
}

void Autosave::WriteAtExit(const Plan& plan) {
    Write(plan, true);
}

bool Autosave::Write(const Plan& plan, bool evenWithoutPrevious) {
    MarkWritten(plan);
    m_system.CreateFolders(m_file.parent_path());
    const auto before = IniFile::LoadOrEmpty(m_file, m_system);
    if (!before) {
        return false;
    }
    IniFile after = *before;
    WritePlan(plan, after);
    const bool fromFile = m_fromFile == m_lastWritten;
    if (fromFile != IsFromFile(after)) {
        after.WriteINI(kSession, kFromFile, fromFile ? "1" : "0");
    }
    const std::string bytes = after.Bytes();
    if (bytes == before->Bytes()) {
        return true;
    }
    m_previousKept = m_previousKept || KeepPrevious(*before);
    return (m_previousKept || evenWithoutPrevious) && WriteFileAtomically(m_file, bytes, m_system);
}

void Autosave::KeepReplaced(const Plan& plan) const {
    const std::string bytes = ToBytes(plan);
    const auto last = IniFile::Load(ReplacedPath(1), m_system);
    if (plan.LV_Bauliste.Orders().IsEmpty() || (last && last->Bytes() == bytes)) {
        return;
    }
    m_system.CreateFolders(m_file.parent_path());
    if (WriteFileAtomically(ReplacedPath(0), bytes, m_system)) {
        static_cast<void>(m_system.Rename(ReplacedPath(0), ReplacedPath(ShiftReplaced())));
    }
}

std::filesystem::path Autosave::ReplacedPath(std::size_t number) const {
    return m_file.parent_path() / ("ersetzt-" + std::to_string(number) + ".tvf");
}

// Moves up the plans before the first gap; without a gap the oldest is overwritten.
std::size_t Autosave::ShiftReplaced() const {
    std::size_t free = 1;
    while (free < kReplaced && m_system.KindOf(ReplacedPath(free)) != FileSystem::Kind::Nothing) {
        ++free;
    }
    for (; free > 1; --free) {
        if (!m_system.Rename(ReplacedPath(free - 1), ReplacedPath(free))) {
            break;
        }
    }
    return free;
}

bool Autosave::KeepPrevious(const IniFile& previous) {
    return !HasRows(previous) || IsFromFile(previous) ||
           std::ranges::any_of(m_previous, [&](const auto& file) {
               return WriteFileAtomically(file, previous.Bytes(), m_system);
           });
}

}  // namespace tarvelin
