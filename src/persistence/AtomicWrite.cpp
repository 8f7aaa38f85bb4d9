// Temporary files that replace others.
#include "persistence/AtomicWrite.h"

#include <charconv>
#include <string>
#include <system_error>
#include <utility>

#include "util/Utf8.h"

namespace tarvelin {

namespace {

constexpr std::string_view kPrefix = ".tarvelin-";
constexpr std::string_view kSuffix = ".tmp";

/// Whether it is the temporary file of a process that was killed in the middle of a save.
bool IsOrphaned(std::string_view name, const FileSystem& system) {
    if (!name.starts_with(kPrefix) || !name.ends_with(kSuffix)) {
        return false;
    }
    name.remove_prefix(kPrefix.size());
    name.remove_suffix(kSuffix.size());
    std::int32_t process = 0;
    const auto parsed = std::from_chars(name.data(), name.data() + name.size(), process);
    return parsed.ec == std::errc() && parsed.ptr == name.data() + name.size() && process > 0 &&
           (process == system.ProcessId() || !system.IsRunning(process));
}

void RemoveOrphans(const std::filesystem::path& folder, const FileSystem& system) {
    for (const auto& entry : system.Entries(folder)) {
        if (IsOrphaned(PathToUtf8(entry.filename()), system)) {
            DeleteFile(entry, system);
        }
    }
}

/// Deleted by the destructor unless it has replaced the target.
class TempFile {
  public:
    TempFile(const std::filesystem::path& folder, const FileSystem& system)
        : m_system(system),
          m_path(folder / (std::string(kPrefix) + std::to_string(system.ProcessId()) +
                           std::string(kSuffix))),
          m_handle(system.Create(m_path)),
          m_exists(m_handle >= 0) {}
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;
    ~TempFile() {
        Close();
        if (m_exists) {
            DeleteFile(m_path, m_system);
        }
    }

    [[nodiscard]] bool Exists() const { return m_exists; }
    bool CopyPermissions(const std::filesystem::path& from) {
        return m_system.CopyPermissions(m_handle, from);
    }
    bool Fill(std::string_view bytes) {
        while (!bytes.empty()) {
            const std::ptrdiff_t n = m_system.Write(m_handle, bytes);
            if (n <= 0) {
                return false;
            }
            bytes.remove_prefix(static_cast<std::size_t>(n));
        }
        return m_system.Sync(m_handle) && Close();
    }
    bool TakePlaceOf(const std::filesystem::path& file) {
        const bool succeeded = m_system.Rename(m_path, file);
        m_exists = !succeeded;
        return succeeded;
    }

  private:
    bool Close() {
        const int handle = std::exchange(m_handle, -1);
        return handle < 0 || m_system.Close(handle);
    }

    const FileSystem& m_system;
    std::filesystem::path m_path;
    int m_handle;
    bool m_exists;
};

}  // namespace

bool WriteFileAtomically(const std::filesystem::path& file, std::string_view bytes,
                         const FileSystem& system) {
    // If the file is a link, its target is replaced, not the link.
    const auto resolved = system.Resolve(file);
    if (!resolved) {
        return false;
    }
    const auto kind = system.KindOf(*resolved);
    const bool present = kind == FileSystem::Kind::RegularFile;
    if (present ? !system.IsWritable(*resolved) : kind != FileSystem::Kind::Nothing) {
        return false;
    }
    const auto folder = resolved->parent_path();
    RemoveOrphans(folder, system);
    TempFile temp(folder, system);
    if (!temp.Exists() || (present && !temp.CopyPermissions(*resolved)) || !temp.Fill(bytes) ||
        !temp.TakePlaceOf(*resolved)) {
        return false;
    }
    // Only then is the rename on disk too.
    system.SyncFolder(folder);
    return true;
}

}  // namespace tarvelin
