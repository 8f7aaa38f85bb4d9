// The calls on Windows.
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

constexpr std::size_t kSlice = std::size_t{1} << 20U;

/// A path as the system reads it whatever its length and letters: whole, behind a mark. The mark
/// ends the system's own reading of ".", ".." and "/" in it. Empty if the path is none.
std::wstring Readable(const fs::path& path) {
    std::wstring full(::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(
        ::GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    if (full.empty() || full.starts_with(LR"(\\?\)") || full.starts_with(LR"(\\.\)")) {
        return full;
    }
    const bool sharing = full.starts_with(LR"(\\)");
    return sharing ? LR"(\\?\UNC\)" + full.substr(2) : LR"(\\?\)" + full;
}

/// A file, folder or device that is looked at, however others hold it.
class PathHandle {
  public:
    explicit PathHandle(const fs::path& path)
        : m_handle(::CreateFileW(Readable(path).c_str(), FILE_READ_ATTRIBUTES,
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
        BY_HANDLE_FILE_INFORMATION inputs;
        if (::GetFileInformationByHandle(m_handle, &inputs) == 0) {
            return std::nullopt;
        }
        return (inputs.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::TempFolder
                                                                         : Kind::RegularFile;
    }
    /// Behind all links; empty where the disk can't tell it.
    [[nodiscard]] std::wstring Location() const {
        std::wstring position(::GetFinalPathNameByHandleW(m_handle, nullptr, 0, 0), L'\0');
        position.resize(::GetFinalPathNameByHandleW(m_handle, position.data(),
                                                    static_cast<DWORD>(position.size()), 0));
        return position;
    }

    /// Whether it isn't there because nothing has this name.
    [[nodiscard]] bool IsNothing() const {
        return !Exists() && (m_error == ERROR_FILE_NOT_FOUND || m_error == ERROR_PATH_NOT_FOUND);
    }

  private:
    HANDLE m_handle;
    DWORD m_error;
};

/// Whether another program has the file open in a way that lets nobody else at it.
bool IsHeld(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION ||
           error == ERROR_USER_MAPPED_FILE;
}

/// Virus scanners and indexes hold a file for a moment after it was written; who holds it longer
/// wins. `action` answers with the system's error; whether it came to its end.
template <class Action>
bool Patiently(Action action) {
    constexpr int kTrials = 20;
    constexpr DWORD kPause = 50;
    DWORD error = action();
    for (int trial = 1; IsHeld(error) && trial < kTrials; ++trial) {
        ::Sleep(kPause);
        error = action();
    }
    return error == ERROR_SUCCESS;
}

class WindowsFileSystem final : public FileSystem {
  public:
    [[nodiscard]] std::optional<Kind> KindOf(const fs::path& path) const override {
        const PathHandle view(path);
        if (view.Exists()) {
            return view.KindOf();
        }
        return view.IsNothing() ? std::optional(Kind::Nothing) : std::nullopt;
    }
    [[nodiscard]] std::optional<fs::path> Resolve(const fs::path& path) const override {
        const fs::path full = Readable(path);
        if (full.empty()) {
            return std::nullopt;
        }
        // A new file has its folder's place.
        if (const PathHandle file(full); file.Exists()) {
            const std::wstring position = file.Location();
            return position.empty() ? full : fs::path(position);
        }
        const PathHandle folder(full.parent_path());
        const std::wstring position = folder.Exists() ? folder.Location() : std::wstring();
        return position.empty() ? full : fs::path(position) / full.filename();
    }
    /// A folder tells only when a file is made in it. The system deletes it, whoever looks at it.
    [[nodiscard]] bool IsWritable(const fs::path& path) const override {
        if (KindOf(path) != Kind::TempFolder) {
            return ::_waccess(Readable(path).c_str(), 2) == 0;
        }
        const fs::path trial = path / (".tarvelin-" + std::to_string(ProcessId()) + ".tmp");
        const HANDLE handle = ::CreateFileW(
            Readable(trial).c_str(), GENERIC_WRITE | DELETE,
            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, CREATE_ALWAYS,
            FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        return handle != INVALID_HANDLE_VALUE && ::CloseHandle(handle) != 0;
    }

    [[nodiscard]] std::vector<fs::path> Entries(const fs::path& folder) const override {
        std::vector<fs::path> entries;
        WIN32_FIND_DATAW entry;
        const HANDLE search = ::FindFirstFileW(Readable(folder / "*").c_str(), &entry);
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
    /// What the file system keeps for itself, as in its index or compressed, tells no folder apart.
    [[nodiscard]] bool IsPlainFolder(const fs::path& path) const override {
        constexpr DWORD kSpecial = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN |
                                   FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE |
                                   FILE_ATTRIBUTE_REPARSE_POINT;
        const DWORD attribute = ::GetFileAttributesW(Readable(path).c_str());
        return attribute != INVALID_FILE_ATTRIBUTES &&
               (attribute & (FILE_ATTRIBUTE_DIRECTORY | kSpecial)) == FILE_ATTRIBUTE_DIRECTORY;
    }
    bool CreateFolders(const fs::path& path) const override {
        if (KindOf(path) != Kind::TempFolder && path.has_relative_path() &&
            CreateFolders(path.parent_path())) {
            ::CreateDirectoryW(Readable(path).c_str(), nullptr);
        }
        return KindOf(path) == Kind::TempFolder;
    }

    [[nodiscard]] int Open(const fs::path& file) const override {
        int number = -1;
        Patiently([&] {
            number = ::_wopen(Readable(file).c_str(), _O_RDONLY | _O_BINARY | _O_NOINHERIT);
            return number >= 0 ? DWORD{ERROR_SUCCESS} : DWORD{_doserrno};
        });
        return number;
    }
    [[nodiscard]] int Create(const fs::path& file) const override {
        return ::_wopen(Readable(file).c_str(),
                        _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                        _S_IREAD | _S_IWRITE);
    }
    [[nodiscard]] std::ptrdiff_t Read(int number, std::span<char> bytes) const override {
        const auto count = static_cast<unsigned>(std::min(bytes.size(), kSlice));
        return ::_read(number, bytes.data(), count);
    }
    [[nodiscard]] std::ptrdiff_t Write(int number, std::string_view bytes) const override {
        const auto count = static_cast<unsigned>(std::min(bytes.size(), kSlice));
        return ::_write(number, bytes.data(), count);
    }
    /// A new file takes the rights of its folder, as those of most programs do here.
    [[nodiscard]] bool CopyPermissions(int /*nummer*/, const fs::path& /*von*/) const override {
        return true;
    }
    [[nodiscard]] bool Sync(int number) const override { return ::_commit(number) == 0; }
    bool Close(int number) const override { return ::_close(number) == 0; }

    [[nodiscard]] bool Rename(const fs::path& from, const fs::path& target) const override {
        return Patiently([&] {
            const bool moved =
                ::MoveFileExW(Readable(from).c_str(), Readable(target).c_str(),
                              MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
            const DWORD error = moved ? DWORD{ERROR_SUCCESS} : ::GetLastError();
            // Who may not be replaced at all answers the same.
            return error == ERROR_ACCESS_DENIED ? DWORD{ERROR_SHARING_VIOLATION} : error;
        });
    }
    /// The move has written through.
    bool SyncFolder(const fs::path& /*ordner*/) const override { return true; }
    bool Remove(const fs::path& file) const override {
        return ::_wunlink(Readable(file).c_str()) == 0;
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
