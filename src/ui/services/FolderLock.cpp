// Tells a lock that is held from one that a dead program left.
#include "ui/services/FolderLock.h"

#include <QFile>

#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// Why the lock couldn't be taken: another program has it, or it can't be created at all. A dead
/// holder's file is removed, whatever it contains: half a lock, another machine's, one with the
/// process id that we have now.
bool IsHeldByOther(QLockFile& lock) {
    if (lock.error() != QLockFile::LockFailedError || !QFile::exists(lock.fileName())) {
        return false;
    }
    return !lock.removeStaleLockFile() || !lock.tryLock(0);
}

}  // namespace

FolderLock::FolderLock(const std::filesystem::path& programFolder)
    : m_file(PathToQString(programFolder / "tarvelin.lock")) {
    // A lock never expires: a window may stay open for weeks.
    m_file.setStaleLockTime(0);
    m_heldByOther = !m_file.tryLock(0) && IsHeldByOther(m_file);
}

}  // namespace tarvelin
