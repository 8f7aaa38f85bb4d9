// A platform on which a call fails, for the tests of the file layer.
#pragma once

#include <string_view>

#include "persistence/FileSystem.h"

namespace tarvelin {

/// What fails behind the n-th call: nothing more, calls of its kind (a full disk), or all of them
/// (a disk that was pulled out).
enum class FaultKind { Once, ThisCallForever, EverythingForever };

/// The platform with its n-th call failing, from 1. A write that fails has written half.
class FaultyFileSystem : public FileSystem {
  public:
    FaultyFileSystem(int n, FaultKind kind) : m_n(n), m_kind(kind) {}

    /// Counts from 1 again.
    void Begin(int n) {
        m_n = n;
        m_counter = 0;
    }
    [[nodiscard]] bool HasFailed() const { return m_counter >= m_n; }
    /// The name of the call that failed first.
    [[nodiscard]] std::string_view Faulty() const { return m_disturbed; }

    [[nodiscard]] std::optional<Kind> KindOf(const std::filesystem::path& path) const override {
        return Fails("Sieh") ? std::nullopt : NativeFileSystem().KindOf(path);
    }
    [[nodiscard]] std::optional<std::filesystem::path> Resolve(
        const std::filesystem::path& path) const override {
        return Fails("LoeseAuf") ? std::nullopt : NativeFileSystem().Resolve(path);
    }
    [[nodiscard]] bool IsWritable(const std::filesystem::path& path) const override {
        return !Fails("IstBeschreibbar") && NativeFileSystem().IsWritable(path);
    }
    [[nodiscard]] std::vector<std::filesystem::path> Entries(
        const std::filesystem::path& folder) const override {
        return Fails("Eintraege") ? std::vector<std::filesystem::path>()
                                  : NativeFileSystem().Entries(folder);
    }
    [[nodiscard]] bool IsPlainFolder(const std::filesystem::path& path) const override {
        return !Fails("IstSchlichterOrdner") && NativeFileSystem().IsPlainFolder(path);
    }
    bool CreateFolders(const std::filesystem::path& path) const override {
        return !Fails("LegeOrdnerAn") && NativeFileSystem().CreateFolders(path);
    }
    [[nodiscard]] int Open(const std::filesystem::path& file) const override {
        return Fails("Oeffne") ? -1 : NativeFileSystem().Open(file);
    }
    [[nodiscard]] int Create(const std::filesystem::path& file) const override {
        return Fails("LegeAn") ? -1 : NativeFileSystem().Create(file);
    }
    [[nodiscard]] std::ptrdiff_t Read(int number, std::span<char> bytes) const override {
        return Fails("Lies") ? -1 : NativeFileSystem().Read(number, bytes);
    }
    [[nodiscard]] std::ptrdiff_t Write(int number, std::string_view bytes) const override {
        // In two pieces, so that something can fail between them.
        const auto half = bytes.substr(0, (bytes.size() + 1) / 2);
        if (Fails("Schreibe")) {
            static_cast<void>(NativeFileSystem().Write(number, half));
            return -1;
        }
        return NativeFileSystem().Write(number, half);
    }
    [[nodiscard]] bool CopyPermissions(int number,
                                       const std::filesystem::path& from) const override {
        return !Fails("UebernimmRechte") && NativeFileSystem().CopyPermissions(number, from);
    }
    [[nodiscard]] bool Sync(int number) const override {
        return !Fails("BringAufPlatte") && NativeFileSystem().Sync(number);
    }
    bool Close(int number) const override {
        const bool disturbed = Fails("Schliesse");
        return NativeFileSystem().Close(number) && !disturbed;
    }
    [[nodiscard]] bool Rename(const std::filesystem::path& from,
                              const std::filesystem::path& target) const override {
        return !Fails("BenenneUm") && NativeFileSystem().Rename(from, target);
    }
    bool SyncFolder(const std::filesystem::path& folder) const override {
        return !Fails("BringOrdnerAufPlatte") && NativeFileSystem().SyncFolder(folder);
    }
    bool Remove(const std::filesystem::path& file) const override {
        return !Fails("Loesche") && NativeFileSystem().Remove(file);
    }
    [[nodiscard]] std::int64_t ProcessId() const override { return NativeFileSystem().ProcessId(); }
    [[nodiscard]] bool IsRunning(std::int64_t process) const override {
        return NativeFileSystem().IsRunning(process);
    }

  private:
    /// Called in front of the call; whether it fails.
    [[nodiscard]] bool Fails(std::string_view call) const {
        if (++m_counter == m_n) {
            m_disturbed = call;
            BeforeFault();
            return true;
        }
        return m_counter > m_n && (m_kind == FaultKind::EverythingForever ||
                                   (m_kind == FaultKind::ThisCallForever && m_disturbed == call));
    }
    virtual void BeforeFault() const {}

    int m_n;
    FaultKind m_kind;
    mutable int m_counter = 0;
    mutable std::string_view m_disturbed;
};

}  // namespace tarvelin
