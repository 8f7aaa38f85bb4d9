// The lock of the program's folder.
#pragma once

#include <QLockFile>
#include <filesystem>

namespace tarvelin {

/// Held by the first window of a folder until it gives it back. A lock whose holder has died is
/// taken over. In a folder that can't be written nobody holds one, and nobody needs it.
class Ordnerschloss {
  public:
    explicit Ordnerschloss(const std::filesystem::path& programmordner);

    /// Whether another program holds it.
    [[nodiscard]] bool HatEinAnderer() const { return m_hatEinAnderer; }

    /// For the next program that starts.
    void GibZurueck() { m_datei.unlock(); }

  private:
    QLockFile m_datei;
    bool m_hatEinAnderer = false;
};

}  // namespace tarvelin
