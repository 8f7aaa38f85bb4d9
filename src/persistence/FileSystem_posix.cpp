// The system calls on POSIX.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

#include "persistence/FileSystem.h"

namespace tarvelin {

namespace {

namespace fs = std::filesystem;

/// Repeats a call that a signal has interrupted.
template <class Call>
auto Retry(Call call) {
    auto answer = call();
    while (answer < 0 && errno == EINTR) {
        answer = call();
    }
    return answer;
}

class PosixFileSystem final : public FileSystem {
  public:
    [[nodiscard]] std::optional<Kind> KindOf(const fs::path& path) const override {
        struct stat status {};
        if (::stat(path.c_str(), &status) != 0) {
            return errno == ENOENT || errno == ENOTDIR ? std::optional(Kind::Nothing)
                                                       : std::nullopt;
        }
        return S_ISREG(status.st_mode)   ? Kind::RegularFile
               : S_ISDIR(status.st_mode) ? Kind::Folder
                                         : Kind::Other;
    }
    [[nodiscard]] std::optional<fs::path> Resolve(const fs::path& path) const override {
        std::error_code error;
        auto resolved = fs::weakly_canonical(fs::absolute(path, error), error);
        return error ? std::nullopt : std::optional(std::move(resolved));
    }
    [[nodiscard]] bool IsWritable(const fs::path& path) const override {
        const bool folder = KindOf(path) == Kind::Folder;
        return ::access(path.c_str(), folder ? W_OK | X_OK : W_OK) == 0;
    }
    [[nodiscard]] std::vector<fs::path> Entries(const fs::path& folder) const override {
        std::vector<fs::path> entries;
        std::error_code error;
        for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
             entry.increment(error)) {
            entries.push_back(entry->path());
        }
        return entries;
    }
    [[nodiscard]] bool IsPlainFolder(const fs::path& path) const override {
        std::error_code error;
        return fs::symlink_status(path, error).type() == fs::file_type::directory &&
               !path.filename().native().starts_with('.');
    }
    bool CreateFolders(const fs::path& path) const override {
        std::error_code error;
        fs::create_directories(path, error);
        return KindOf(path) == Kind::Folder;
    }

    [[nodiscard]] int Open(const fs::path& file) const override {
        return Retry([&] { return ::open(file.c_str(), O_RDONLY | O_CLOEXEC); });
    }
    [[nodiscard]] int Create(const fs::path& file) const override {
        constexpr mode_t kNewPermissions = 0666;
        return Retry([&] {
            return ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewPermissions);
        });
    }
    [[nodiscard]] std::ptrdiff_t Read(int handle, std::span<char> bytes) const override {
        return Retry([&] { return ::read(handle, bytes.data(), bytes.size()); });
    }
    [[nodiscard]] std::ptrdiff_t Write(int handle, std::string_view bytes) const override {
        return Retry([&] { return ::write(handle, bytes.data(), bytes.size()); });
    }
    [[nodiscard]] bool CopyPermissions(int handle, const fs::path& from) const override {
        constexpr mode_t kPermissionBits = 07777;
        struct stat status {};
        return ::stat(from.c_str(), &status) == 0 &&
               ::fchmod(handle, status.st_mode & kPermissionBits) == 0;
    }
    [[nodiscard]] bool Sync(int handle) const override {
        return Retry([&] { return ::fsync(handle); }) == 0;
    }
    bool Close(int handle) const override { return ::close(handle) == 0; }

    [[nodiscard]] bool Rename(const fs::path& from, const fs::path& target) const override {
        return ::rename(from.c_str(), target.c_str()) == 0;
    }
    bool SyncFolder(const fs::path& folder) const override {
        const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        const bool succeeded = handle >= 0 && Sync(handle);
        return handle >= 0 && Close(handle) && succeeded;
    }
    bool Remove(const fs::path& file) const override { return ::unlink(file.c_str()) == 0; }

    [[nodiscard]] std::int64_t ProcessId() const override { return ::getpid(); }
    [[nodiscard]] bool IsRunning(std::int64_t process) const override {
        return ::kill(static_cast<pid_t>(process), 0) == 0 || errno != ESRCH;
    }
};

}  // namespace

const FileSystem& NativeFileSystem() {
    static const PosixFileSystem kPosix;
    return kPosix;
}

}  // namespace tarvelin
