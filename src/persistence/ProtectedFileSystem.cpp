// Decides which paths are protected.
#include "persistence/ProtectedFileSystem.h"

#include <algorithm>

namespace tarvelin {

ProtectedFileSystem::ProtectedFileSystem(const std::vector<std::filesystem::path>& protectedFiles,
                                         const FileSystem& system)
    : m_system(system) {
    for (const auto& path : protectedFiles) {
        auto resolved = system.Resolve(path).value_or(path);
        m_protected.push_back(resolved.has_filename() ? resolved : resolved.parent_path());
    }
}

bool ProtectedFileSystem::IsProtected(const std::filesystem::path& path) const {
    const auto resolved = m_system.Resolve(path).value_or(path);
    return std::ranges::any_of(m_protected, [&](const auto& protectedFile) {
        return std::mismatch(protectedFile.begin(), protectedFile.end(), resolved.begin(),
                             resolved.end())
                   .first == protectedFile.end();
    });
}

}  // namespace tarvelin
