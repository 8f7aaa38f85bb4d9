// Who holds the lock.
#include "ui/dienste/Ordnerschloss.h"

#include "ui/bauteile/Bauteile.h"

namespace tarvelin {

Ordnerschloss::Ordnerschloss(const std::filesystem::path& programmordner)
    : m_datei(Pfadtext(programmordner / "tarvelin.lock")) {
    // A window may stay open for weeks; only its death frees the folder.
    m_datei.setStaleLockTime(0);
    m_hatEinAnderer = !m_datei.tryLock(0) && m_datei.error() == QLockFile::LockFailedError;
}

}  // namespace tarvelin
