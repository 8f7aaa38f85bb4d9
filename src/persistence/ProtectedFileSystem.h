// A file system that refuses to change certain files and folders.
#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "persistence/FileSystem.h"

namespace tarvelin {

/// Forwards to another file system, but changes neither the given files and folders nor anything
/// below them.
class ProtectedFileSystem final : public FileSystem {
  public:
    /// `system` must outlive it.
    explicit ProtectedFileSystem(const std::vector<std::filesystem::path>& protectedFiles,
                                 const FileSystem& system = NativeFileSystem());

    [[nodiscard]] bool IsWritable(const std::filesystem::path& path) const override {
        return !IsProtected(path) && m_system.IsWritable(path);
    }
    [[nodiscard]] int Create(const std::filesystem::path& file) const override {
        return IsProtected(file) ? -1 : m_system.Create(file);
    }
    bool CreateFolders(const std::filesystem::path& path) const override {
        return !IsProtected(path) && m_system.CreateFolders(path);
    }
    [[nodiscard]] bool Rename(const std::filesystem::path& from,
                              const std::filesystem::path& target) const override {
        return !IsProtected(from) && !IsProtected(target) && m_system.Rename(from, target);
    }
    bool Remove(const std::filesystem::path& file) const override {
        return !IsProtected(file) && m_system.Remove(file);
    }

    [[nodiscard]] std::optional<Kind> KindOf(const std::filesystem::path& path) const override {
        return m_system.KindOf(path);
    }
    [[nodiscard]] std::optional<std::filesystem::path> Resolve(
        const std::filesystem::path& path) const override {
        return m_system.Resolve(path);
    }
    [[nodiscard]] std::vector<std::filesystem::path> Entries(
        const std::filesystem::path& folder) const override {
        return m_system.Entries(folder);
    }
    [[nodiscard]] bool IsPlainFolder(const std::filesystem::path& path) const override {
        return m_system.IsPlainFolder(path);
    }
    [[nodiscard]] int Open(const std::filesystem::path& file) const override {
        return m_system.Open(file);
    }
    [[nodiscard]] std::ptrdiff_t Read(int handle, std::span<char> bytes) const override {
        return m_system.Read(handle, bytes);
    }
    [[nodiscard]] std::ptrdiff_t Write(int handle, std::string_view bytes) const override {
        return m_system.Write(handle, bytes);
    }
    [[nodiscard]] bool CopyPermissions(int handle,
                                       const std::filesystem::path& from) const override {
        return m_system.CopyPermissions(handle, from);
    }
    [[nodiscard]] bool Sync(int handle) const override { return m_system.Sync(handle); }
    bool Close(int handle) const override { return m_system.Close(handle); }
    bool SyncFolder(const std::filesystem::path& folder) const override {
        return m_system.SyncFolder(folder);
    }
    [[nodiscard]] std::int64_t ProcessId() const override { return m_system.ProcessId(); }
    [[nodiscard]] bool IsRunning(std::int64_t process) const override {
        return m_system.IsRunning(process);
    }

  private:
    [[nodiscard]] bool IsProtected(const std::filesystem::path& path) const;

    const FileSystem& m_system;
    /// Absolute, without links.
    std::vector<std::filesystem::path> m_protected;
};

}  // namespace tarvelin
