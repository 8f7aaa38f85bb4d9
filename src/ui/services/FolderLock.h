// Tells whether another program already uses the folder.
#pragma once

#include <QLockFile>
#include <filesystem>

namespace tarvelin {

/// Taken by the first program that uses a folder, until it releases it or dies. In a read-only
/// folder nobody can take it, and nobody needs to.
class FolderLock {
  public:
    explicit FolderLock(const std::filesystem::path& programFolder);

    [[nodiscard]] bool HeldByOther() const { return m_heldByOther; }

    void Release() { m_file.unlock(); }

  private:
    QLockFile m_file;
    bool m_heldByOther = false;
};

}  // namespace tarvelin
