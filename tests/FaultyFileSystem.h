// A file system whose n-th call fails, for the tests of the file layer.
#pragma once

#include <cstdlib>
#include <string_view>

#include "persistence/FileSystem.h"

namespace tarvelin {

/// What fails after the n-th call: nothing, calls of the same kind (a full disk), all calls (an
/// unplugged disk); or the process ends there without any clean-up.
enum class FaultKind { Once, ThisCallForever, EverythingForever, EndOfProcess };

/// The native file system with its n-th call (from 1) failing. A failing write writes half.
class FaultyFileSystem final : public FileSystem {
    using Path = std::filesystem::path;

  public:
    /// The exit code of a process that has ended at a call.
    static constexpr int kDead = 99;

    FaultyFileSystem(int n, FaultKind kind) : m_failingCall(n), m_kind(kind) {}

    [[nodiscard]] bool HasFailed() const { return m_calls >= m_failingCall; }
    /// The name of the call that failed first, empty if none did.
    [[nodiscard]] std::string_view Faulty() const { return m_faulty; }

    [[nodiscard]] std::optional<Kind> KindOf(const Path& path) const override {
        return Fails("KindOf") ? std::nullopt : NativeFileSystem().KindOf(path);
    }
    [[nodiscard]] std::optional<Path> Resolve(const Path& path) const override {
        return Fails("Resolve") ? std::nullopt : NativeFileSystem().Resolve(path);
    }
    [[nodiscard]] bool IsWritable(const Path& path) const override {
        return !Fails("IsWritable") && NativeFileSystem().IsWritable(path);
    }
    [[nodiscard]] std::vector<Path> Entries(const Path& folder) const override {
        return Fails("Entries") ? std::vector<Path>() : NativeFileSystem().Entries(folder);
    }
    [[nodiscard]] bool IsPlainFolder(const Path& path) const override {
        return !Fails("IsPlainFolder") && NativeFileSystem().IsPlainFolder(path);
    }
    bool CreateFolders(const Path& path) const override {
        return !Fails("CreateFolders") && NativeFileSystem().CreateFolders(path);
    }
    [[nodiscard]] int Open(const Path& file) const override {
        return Fails("Open") ? -1 : NativeFileSystem().Open(file);
    }
    [[nodiscard]] int Create(const Path& file) const override {
        return Fails("Create") ? -1 : NativeFileSystem().Create(file);
    }
    [[nodiscard]] std::ptrdiff_t Read(int handle, std::span<char> bytes) const override {
        return Fails("Read") ? -1 : NativeFileSystem().Read(handle, bytes);
    }
    [[nodiscard]] std::ptrdiff_t Write(int handle, std::string_view bytes) const override {
        // Writes at most half, so that a later call can fail in between.
        const auto half = bytes.substr(0, (bytes.size() + 1) / 2);
        if (Fails("Write")) {
            static_cast<void>(NativeFileSystem().Write(handle, half));
            return -1;
        }
        return NativeFileSystem().Write(handle, half);
    }
    [[nodiscard]] bool CopyPermissions(int handle, const Path& from) const override {
        return !Fails("CopyPermissions") && NativeFileSystem().CopyPermissions(handle, from);
    }
    [[nodiscard]] bool Sync(int handle) const override {
        return !Fails("Sync") && NativeFileSystem().Sync(handle);
    }
    bool Close(int handle) const override {
        const bool failed = Fails("Close");
        return NativeFileSystem().Close(handle) && !failed;
    }
    [[nodiscard]] bool Rename(const Path& from, const Path& target) const override {
        return !Fails("Rename") && NativeFileSystem().Rename(from, target);
    }
    bool SyncFolder(const Path& folder) const override {
        return !Fails("SyncFolder") && NativeFileSystem().SyncFolder(folder);
    }
    bool Remove(const Path& file) const override {
        return !Fails("Remove") && NativeFileSystem().Remove(file);
    }
    [[nodiscard]] std::int64_t ProcessId() const override { return NativeFileSystem().ProcessId(); }
    [[nodiscard]] bool IsRunning(std::int64_t process) const override {
        return NativeFileSystem().IsRunning(process);
    }

  private:
    /// Counts the call. Whether it fails.
    [[nodiscard]] bool Fails(std::string_view call) const {
        if (++m_calls == m_failingCall) {
            m_faulty = call;
            if (m_kind == FaultKind::EndOfProcess) {
                std::_Exit(kDead);
            }
            return true;
        }
        return m_calls > m_failingCall &&
               (m_kind == FaultKind::EverythingForever ||
                (m_kind == FaultKind::ThisCallForever && m_faulty == call));
    }

    int m_failingCall;
    FaultKind m_kind;
    mutable int m_calls = 0;
    mutable std::string_view m_faulty;
};

}  // namespace tarvelin
