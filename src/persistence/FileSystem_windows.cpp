// The system calls on Windows.
#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "persistence/FileSystem.h"

namespace tarvelin {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxCount = std::size_t{1} << 20U;

/// The absolute path with the prefix `\\?\`, which lifts the limit on its length. As the system no
/// longer interprets ".", ".." and "/" after the prefix, they are resolved first. Empty if invalid.
std::wstring ExtendedPath(const fs::path& path) {
    std::wstring full(::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(
        ::GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.empty() || full.starts_with(LR"(\\?\)") || full.starts_with(LR"(\\.\)")) {
        return full;
    }
    const bool isShare = full.starts_with(LR"(\\)");
    return isShare ? LR"(\\?\UNC\)" + full.substr(2) : LR"(\\?\)" + full;
}

/// Opens a file, folder or device for its attributes only, even if others hold it.
class PathHandle {
  public:
    explicit PathHandle(const fs::path& path)
        : m_handle(::CreateFileW(ExtendedPath(path).c_str(), FILE_READ_ATTRIBUTES,
                                 FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                 OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr)),
          m_error(::GetLastError()) {}
    PathHandle(const PathHandle&) = delete;
    PathHandle& operator=(const PathHandle&) = delete;
    ~PathHandle() {
        if (Exists()) {
            ::CloseHandle(m_handle);
        }
    }

    [[nodiscard]] bool Exists() const { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] std::optional<FileSystem::Kind> KindOf() const {
        using Kind = FileSystem::Kind;
        if (::GetFileType(m_handle) != FILE_TYPE_DISK) {
            return Kind::Other;
        }
        BY_HANDLE_FILE_INFORMATION info;
        if (::GetFileInformationByHandle(m_handle, &info) == 0) {
            return std::nullopt;
        }
        return (info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::Folder
                                                                       : Kind::RegularFile;
    }
    /// With all links resolved; empty where the file system can't tell.
    [[nodiscard]] std::wstring Location() const {
        std::wstring location(::GetFinalPathNameByHandleW(m_handle, nullptr, 0, 0), L'\0');
        location.resize(::GetFinalPathNameByHandleW(m_handle, location.data(),
                                                    static_cast<DWORD>(location.size()), 0));
        return location;
    }

    /// Whether it couldn't be opened because nothing has this name.
    [[nodiscard]] bool IsNothing() const {
        return !Exists() && (m_error == ERROR_FILE_NOT_FOUND || m_error == ERROR_PATH_NOT_FOUND);
    }

  private:
    HANDLE m_handle;
    DWORD m_error;
};

/// Whether another program has opened the file without sharing it.
bool IsHeld(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
           error == ERROR_USER_MAPPED_FILE;
}

/// Retries for a second, as virus scanners and indexers hold a file briefly after it was written.
/// `action` returns the system's error code. Whether it succeeded.
template <class Action>
bool Patiently(Action action) {
    constexpr int kAttempts = 20;
    constexpr DWORD kPause = 50;
    DWORD error = action();
    for (int attempt = 1; IsHeld(error) && attempt < kAttempts; ++attempt) {
        ::Sleep(kPause);
        error = action();
    }
    return error == ERROR_SUCCESS;
}

class WindowsFileSystem final : public FileSystem {
  public:
    [[nodiscard]] std::optional<Kind> KindOf(const fs::path& path) const override {
        const PathHandle handle(path);
        if (handle.Exists()) {
            return handle.KindOf();
        }
        return handle.IsNothing() ? std::optional(Kind::Nothing) : std::nullopt;
    }
    [[nodiscard]] std::optional<fs::path> Resolve(const fs::path& path) const override {
        const fs::path full = ExtendedPath(path);
        if (full.empty()) {
            return std::nullopt;
        }
        // The file may not exist yet; its folder does.
        if (const PathHandle file(full); file.Exists()) {
            const std::wstring location = file.Location();
            return location.empty() ? full : fs::path(location);
        }
        const PathHandle folder(full.parent_path());
        const std::wstring location = folder.Exists() ? folder.Location() : std::wstring();
        return location.empty() ? full : fs::path(location) / full.filename();
    }
    /// For a folder only creating a file gives the answer. The system deletes it when it is closed.
    [[nodiscard]] bool IsWritable(const fs::path& path) const override {
        if (KindOf(path) != Kind::Folder) {
            return ::_waccess(ExtendedPath(path).c_str(), 2) == 0;
        }
        const fs::path probe = path / (".tarvelin-" + std::to_string(ProcessId()) + ".tmp");
        const HANDLE handle = ::CreateFileW(
            ExtendedPath(probe).c_str(), GENERIC_WRITE | DELETE,
            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, CREATE_ALWAYS,
            FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        return handle != INVALID_HANDLE_VALUE && ::CloseHandle(handle) != 0;
    }

    [[nodiscard]] std::vector<fs::path> Entries(const fs::path& folder) const override {
        std::vector<fs::path> entries;
        WIN32_FIND_DATAW entry;
        const HANDLE search = ::FindFirstFileW(ExtendedPath(folder / "*").c_str(), &entry);
        if (search == INVALID_HANDLE_VALUE) {
            return entries;
        }
        do {
            const std::wstring_view name = entry.cFileName;
            if (name != L"." && name != L"..") {
                entries.push_back(folder / name);
            }
        } while (::FindNextFileW(search, &entry) != 0);
        ::FindClose(search);
        return entries;
    }
    /// Attributes that the file system sets for itself, such as compressed, don't matter.
    [[nodiscard]] bool IsPlainFolder(const fs::path& path) const override {
        constexpr DWORD kSpecial = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                                   FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                                   FILE_ATTRIBUTE_REPARSE_POINT;
        const DWORD attributes = ::GetFileAttributesW(ExtendedPath(path).c_str());
        return attributes != INVALID_FILE_ATTRIBUTES &&
               (attributes & (FILE_ATTRIBUTE_DIRECTORY | kSpecial)) == FILE_ATTRIBUTE_DIRECTORY;
    }
    bool CreateFolders(const fs::path& path) const override {
        if (KindOf(path) != Kind::Folder && path.has_relative_path() &&
            CreateFolders(path.parent_path())) {
            ::CreateDirectoryW(ExtendedPath(path).c_str(), nullptr);
        }
        return KindOf(path) == Kind::Folder;
    }

    [[nodiscard]] int Open(const fs::path& file) const override {
        int handle = -1;
        Patiently([&] {
            handle = ::_wopen(ExtendedPath(file).c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
            return handle >= 0 ? DWORD{ERROR_SUCCESS} : DWORD{_doserrno};
        });
        return handle;
    }
    [[nodiscard]] int Create(const fs::path& file) const override {
        return ::_wopen(ExtendedPath(file).c_str(),
                        _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                        _S_IREAD | _S_IWRITE);
    }
    [[nodiscard]] std::ptrdiff_t Read(int handle, std::span<char> bytes) const override {
        const auto count = static_cast<unsigned>(std::min(bytes.size(), kMaxCount));
        return ::_read(handle, bytes.data(), count);
    }
    [[nodiscard]] std::ptrdiff_t Write(int handle, std::string_view bytes) const override {
        const auto count = static_cast<unsigned>(std::min(bytes.size(), kMaxCount));
        return ::_write(handle, bytes.data(), count);
    }
    /// New files inherit the permissions of their folder, as usual on Windows.
    [[nodiscard]] bool CopyPermissions(int /*handle*/, const fs::path& /*from*/) const override {
        return true;
    }
    [[nodiscard]] bool Sync(int handle) const override { return ::_commit(handle) == 0; }
    bool Close(int handle) const override { return ::_close(handle) == 0; }

    [[nodiscard]] bool Rename(const fs::path& from, const fs::path& target) const override {
        return Patiently([&] {
            const bool moved =
                ::MoveFileExW(ExtendedPath(from).c_str(), ExtendedPath(target).c_str(),
                              MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
            const DWORD error = moved ? DWORD{ERROR_SUCCESS} : ::GetLastError();
            // A target that others hold may give this error too, so it counts as held.
            return error == ERROR_ACCESS_DENIED ? DWORD{ERROR_SHARING_VIOLATION} : error;
        });
    }
    /// `MOVEFILE_WRITE_THROUGH` has done it.
    bool SyncFolder(const fs::path& /*folder*/) const override { return true; }
    bool Remove(const fs::path& file) const override {
        return ::_wunlink(ExtendedPath(file).c_str()) == 0;
    }

    [[nodiscard]] std::int64_t ProcessId() const override { return ::GetCurrentProcessId(); }
    [[nodiscard]] bool IsRunning(std::int64_t process) const override {
        const HANDLE handle = ::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
        if (handle == nullptr) {
            return ::GetLastError() != ERROR_INVALID_PARAMETER;
        }
        const bool running = ::WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
        ::CloseHandle(handle);
        return running;
    }
};

}  // namespace

const FileSystem& NativeFileSystem() {
    static const WindowsFileSystem kWindows;
    return kWindows;
}

}  // namespace tarvelin
