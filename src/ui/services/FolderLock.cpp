// Who holds the lock.
#include "ui/services/FolderLock.h"

#include <QFile>

#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// Whether a lock that can't be taken is held by somebody. What a dead holder left can be deleted,
/// whatever stands in it: half a lock, another machine's, one with a number that this process has
/// now. A lock that can't be made isn't there.
bool IsHeldByOther(QLockFile& lock) {
    if (lock.error() != QLockFile::LockFailedError || !QFile::exists(lock.fileName())) {
        return false;
    }
    return !lock.removeStaleLockFile() || !lock.tryLock(0);
}

}  // namespace

FolderLock::FolderLock(const std::filesystem::path& programFolder)
    : m_file(PathToQString(programFolder / "tarvelin.lock")) {
    // A window may stay open for weeks; only its death frees the folder.
    m_file.setStaleLockTime(0);
    m_heldByOther = !m_file.tryLock(0) && IsHeldByOther(m_file);
}

}  // namespace tarvelin
