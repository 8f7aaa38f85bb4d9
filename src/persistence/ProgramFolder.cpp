// Chooses the program's folder and fills that of a user.
#include "persistence/ProgramFolder.h"

#include <algorithm>

#include "persistence/AtomicWrite.h"
#include "persistence/Autosave.h"

namespace tarvelin {

namespace fs = std::filesystem;

namespace {

/// False if the file can't be written.
bool CopyMissing(const fs::path& from, const fs::path& target) {
    const auto kind = NativeFileSystem().KindOf(target);
    if (kind && *kind != FileSystem::Kind::Nothing) {
        return true;
    }
    constexpr std::size_t kMaxSize = std::size_t{16} << 20U;
    const auto bytes = ReadFileToString(from, kMaxSize, NativeFileSystem());
    return !bytes || WriteFileAtomically(target, *bytes);
}

bool IsFolder(const fs::path& path) {
    return NativeFileSystem().KindOf(path) == FileSystem::Kind::Folder;
}

/// Copies missing files with their folders. False if anything can't be written.
bool AddMissingFolder(const fs::path& from, const fs::path& target) {
    bool whole = NativeFileSystem().CreateFolders(target);
    for (const fs::path& entry : NativeFileSystem().Entries(from)) {
        const fs::path destination = target / entry.filename();
        whole = (IsFolder(entry) ? AddMissingFolder(entry, destination)
                                 : CopyMissing(entry, destination)) &&
                whole;
    }
    return whole;
}

/// Copies our missing files. False if anything can't be written.
bool SetUp(const fs::path& source, const fs::path& folder) {
    const bool pictures = AddMissingFolder(source / "img", folder / "img");
    const bool sounds = AddMissingFolder(source / "mfx", folder / "mfx");
    const bool openings = AddMissingFolder(source / "openings", folder / "openings");
    const bool plans = NativeFileSystem().CreateFolders(folder / "saves");
    const fs::path starterPlan = fs::path("saves") / "basic.tvf";
    const bool plan = FileExists(folder / "config.cfg") || !FileExists(source / starterPlan) ||
                      CopyMissing(source / starterPlan, folder / starterPlan);
    return pictures && sounds && openings && plans && plan;
}

bool HasPlans(const fs::path& folder) {
    // The starter plan is ours, not the user's.
    return std::ranges::any_of(NativeFileSystem().Entries(folder / "saves"),
                               [](const auto& file) { return file.filename() != "basic.tvf"; });
}

}  // namespace

std::vector<fs::path> ProgramFolder::ReadOnlyPaths(bool heldByOther) const {
    if (!canKeep) {
        return {path};
    }
    if (!heldByOther) {
        return {};
    }
    auto readOnly = Autosave(path).AllPaths();
    readOnly.push_back(path / "config.cfg");
    return readOnly;
}

fs::path PlanFolder(const fs::path& programFolder, const FileSystem& system) {
    fs::path folder = programFolder / "saves";
    system.CreateFolders(folder);
    while (system.KindOf(folder) != FileSystem::Kind::Folder && folder.has_relative_path()) {
        folder = folder.parent_path();
    }
    return folder;
}

ProgramFolder ResolveProgramFolder(const fs::path& programFolder, const fs::path& userFolder) {
    const bool withData = IsFolder(programFolder / "img");
    if (withData && NativeFileSystem().IsWritable(programFolder)) {
        return {.path = programFolder};
    }
    const fs::path source =
        withData ? programFolder : programFolder.parent_path() / "share" / "tarvelin";
    if (userFolder.empty()) {
        return {.path = source, .canKeep = false};
    }
    // A user with plans there keeps seeing them, even if our files don't fit.
    const bool hasPlans = HasPlans(userFolder);
    const bool canKeep = SetUp(source, userFolder) && NativeFileSystem().IsWritable(userFolder) &&
                         NativeFileSystem().IsWritable(userFolder / "saves");
    return {.path = canKeep || hasPlans ? userFolder : source, .canKeep = canKeep};
}

}  // namespace tarvelin
