// All system calls of the file layer behind one interface, which tests replace to let calls fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarvelin {

/// Stateless. An open file is a handle from 0; a call that fails returns -1, false or nothing.
class FileSystem {
  public:
    enum class Kind : std::uint8_t { Nothing, RegularFile, Folder, Other };

    FileSystem() = default;
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    virtual ~FileSystem() = default;

    /// What is at a path, links followed; nothing if that can't be determined.
    [[nodiscard]] virtual std::optional<Kind> KindOf(const std::filesystem::path& path) const = 0;
    /// The absolute path with all links resolved, as far as it exists.
    [[nodiscard]] virtual std::optional<std::filesystem::path> Resolve(
        const std::filesystem::path& path) const = 0;
    /// Whether the user may write a file, or create files in a folder.
    [[nodiscard]] virtual bool IsWritable(const std::filesystem::path& path) const = 0;
    /// Files and folders in a folder; none if it can't be listed.
    [[nodiscard]] virtual std::vector<std::filesystem::path> Entries(
        const std::filesystem::path& folder) const = 0;
    /// Whether the path is a folder, not a link, not hidden, and without any other attribute that
    /// marks a folder as special on the platform.
    [[nodiscard]] virtual bool IsPlainFolder(const std::filesystem::path& path) const = 0;
    /// Creates a folder and its parents. Whether it exists afterwards.
    virtual bool CreateFolders(const std::filesystem::path& path) const = 0;

    /// Opens a file for reading.
    [[nodiscard]] virtual int Open(const std::filesystem::path& file) const = 0;
    /// Creates a file for writing; fails if it exists.
    [[nodiscard]] virtual int Create(const std::filesystem::path& file) const = 0;
    /// The number of bytes read; 0 at the end of the file.
    [[nodiscard]] virtual std::ptrdiff_t Read(int handle, std::span<char> bytes) const = 0;
    /// The number of bytes written.
    [[nodiscard]] virtual std::ptrdiff_t Write(int handle, std::string_view bytes) const = 0;
    /// Gives an open file the permissions of another.
    [[nodiscard]] virtual bool CopyPermissions(int handle,
                                               const std::filesystem::path& from) const = 0;
    /// Returns once the bytes are on the disk.
    [[nodiscard]] virtual bool Sync(int handle) const = 0;
    /// The handle is invalid afterwards in any case.
    virtual bool Close(int handle) const = 0;

    /// Atomic; replaces a file of the new name.
    [[nodiscard]] virtual bool Rename(const std::filesystem::path& from,
                                      const std::filesystem::path& target) const = 0;
    /// Flushes the names in a folder to disk, where the platform has such a call.
    virtual bool SyncFolder(const std::filesystem::path& folder) const = 0;
    virtual bool Remove(const std::filesystem::path& file) const = 0;

    [[nodiscard]] virtual std::int64_t ProcessId() const = 0;
    /// Whether the process runs; true if that can't be determined.
    [[nodiscard]] virtual bool IsRunning(std::int64_t process) const = 0;
};

[[nodiscard]] const FileSystem& NativeFileSystem();

/// The bytes of a regular file; nothing if it can't be read or has more than `max`.
[[nodiscard]] std::optional<std::string> ReadFileToString(const std::filesystem::path& file,
                                                          std::size_t max,
                                                          const FileSystem& system);

/// Whether something other than a folder has this name.
[[nodiscard]] bool FileExists(const std::filesystem::path& File,
                              const FileSystem& system = NativeFileSystem());

/// Failure is ignored.
void DeleteFile(const std::filesystem::path& File, const FileSystem& files);

/// The sorted names of a folder's plain subfolders. One empty name if it has none or can't be
/// listed.
[[nodiscard]] std::vector<std::string> GetSubfolders(const std::filesystem::path& Path,
                                                     const FileSystem& system = NativeFileSystem());

}  // namespace tarvelin
