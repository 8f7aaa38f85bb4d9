// Helpers of the file layer that are the same on every platform.
#include "persistence/FileSystem.h"

#include <algorithm>
#include <array>
#include <utility>

#include "util/Utf8.h"

namespace tarvelin {

std::optional<std::string> ReadFileToString(const std::filesystem::path& file, std::size_t max,
                                            const FileSystem& system) {
    // Reading a device or a pipe might never end.
    if (system.KindOf(file) != FileSystem::Kind::RegularFile) {
        return std::nullopt;
    }
    const int handle = system.Open(file);
    if (handle < 0) {
        return std::nullopt;
    }
    std::string bytes;
    std::array<char, std::size_t{64} << 10U> block{};
    std::ptrdiff_t count = 1;
    while (count > 0 && bytes.size() <= max) {
        count = system.Read(handle, block);
        bytes.append(block.data(), static_cast<std::size_t>(count < 0 ? 0 : count));
    }
    system.Close(handle);
    return count == 0 ? std::optional(std::move(bytes)) : std::nullopt;
}

bool FileExists(const std::filesystem::path& File, const FileSystem& system) {
    const auto kind = system.KindOf(File);
    return kind && *kind != FileSystem::Kind::Nothing && *kind != FileSystem::Kind::Folder;
}

void DeleteFile(const std::filesystem::path& File, const FileSystem& files) {
    files.Remove(File);
}

std::vector<std::string> GetSubfolders(const std::filesystem::path& Path,
                                       const FileSystem& system) {
    std::vector<std::string> names;
    for (const auto& entry : system.Entries(Path)) {
        if (system.IsPlainFolder(entry)) {
            names.push_back(PathToUtf8(entry.filename()));
        }
    }
    std::ranges::sort(names);
    if (names.empty()) {
        names.emplace_back();
    }
    return names;
}

}  // namespace tarvelin
