// The lock of the program's folder.
#pragma once

#include <QLockFile>
#include <filesystem>

namespace tarvelin {

/// Held by the first window of a folder until it gives it back. A lock whose holder has died is
/// taken over. In a folder that can't be written nobody holds one, and nobody needs it.
class FolderLock {
  public:
    explicit FolderLock(const std::filesystem::path& programFolder);

    /// Whether another program holds it.
    [[nodiscard]] bool HeldByOther() const { return m_heldByOther; }

    /// For the next program that starts.
    void Release() { m_file.unlock(); }

  private:
    QLockFile m_file;
    bool m_heldByOther = false;
};

}  // namespace tarvelin
