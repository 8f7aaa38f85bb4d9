// The system calls of the file layer, all of them: what the platform does for it, and the place at
// which a test can let a call fail.
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

/// One function for each call; none of them keeps anything between two calls. An open file is a
/// number from 0; what can't be done answers -1, false or nothing.
class FileSystem {
  public:
    enum class Kind : std::uint8_t { Nothing, RegularFile, Folder, Other };

    FileSystem() = default;
    FileSystem(const FileSystem&) = delete;
    FileSystem& operator=(const FileSystem&) = delete;
    virtual ~FileSystem() = default;

    /// What lies at a path, links followed; nothing if that can't be told.
    [[nodiscard]] virtual std::optional<Kind> KindOf(const std::filesystem::path& path) const = 0;
    /// The absolute path without links, as far as it exists.
    [[nodiscard]] virtual std::optional<std::filesystem::path> Resolve(
        const std::filesystem::path& path) const = 0;
    /// Whether this user can write a file, or make files in a folder.
    [[nodiscard]] virtual bool IsWritable(const std::filesystem::path& path) const = 0;
    /// What lies in a folder; nothing if it can't be listed.
    [[nodiscard]] virtual std::vector<std::filesystem::path> Entries(
        const std::filesystem::path& folder) const = 0;
    /// Whether a folder lies at a path that is no link, isn't hidden, and has nothing else that a
    /// user of the platform would set for a folder apart.
    [[nodiscard]] virtual bool IsPlainFolder(const std::filesystem::path& path) const = 0;
    /// Makes a folder and those above it. Whether it is there afterwards.
    virtual bool CreateFolders(const std::filesystem::path& path) const = 0;

    /// Opens a file for reading.
    [[nodiscard]] virtual int Open(const std::filesystem::path& file) const = 0;
    /// Makes a file that wasn't there, for writing.
    [[nodiscard]] virtual int Create(const std::filesystem::path& file) const = 0;
    /// How many bytes came; 0 at the end of the file.
    [[nodiscard]] virtual std::ptrdiff_t Read(int number, std::span<char> bytes) const = 0;
    /// How many of the bytes went.
    [[nodiscard]] virtual std::ptrdiff_t Write(int number, std::string_view bytes) const = 0;
    /// Gives an open file the access rights of another one.
    [[nodiscard]] virtual bool CopyPermissions(int number,
                                               const std::filesystem::path& from) const = 0;
    /// Returns when the bytes lie on the disk.
    [[nodiscard]] virtual bool Sync(int number) const = 0;
    /// The number is free afterwards in any case.
    virtual bool Close(int number) const = 0;

    /// In one step; a file with the new name gives way.
    [[nodiscard]] virtual bool Rename(const std::filesystem::path& from,
                                      const std::filesystem::path& target) const = 0;
    /// Brings the names in a folder to the disk, where the platform knows such a thing.
    virtual bool SyncFolder(const std::filesystem::path& folder) const = 0;
    virtual bool Remove(const std::filesystem::path& file) const = 0;

    /// The number of this process.
    [[nodiscard]] virtual std::int64_t ProcessId() const = 0;
    /// Whether a process of this number runs, as far as can be told.
    [[nodiscard]] virtual bool IsRunning(std::int64_t process) const = 0;
};

/// The platform's own.
[[nodiscard]] const FileSystem& NativeFileSystem();

/// The bytes of a file; nothing if it is none, can't be read or has more than `max`.
[[nodiscard]] std::optional<std::string> ReadFileToString(const std::filesystem::path& file,
                                                          std::size_t max,
                                                          const FileSystem& system);

/// Whether an existing file, not a folder, has this name.
[[nodiscard]] bool FileExists(const std::filesystem::path& File,
                              const FileSystem& system = NativeFileSystem());

/// Deletes a file if that can be done.
void DeleteFile(const std::filesystem::path& File, const FileSystem& files);

/// The names of the plain subfolders of a folder, sorted. A folder without any, or one that can't
/// be listed, gives one empty name.
[[nodiscard]] std::vector<std::string> GetSubfolders(const std::filesystem::path& Path,
                                                     const FileSystem& system = NativeFileSystem());

}  // namespace tarvelin
