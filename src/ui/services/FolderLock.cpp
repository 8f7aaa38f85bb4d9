// Who holds the lock.
#include "ui/services/FolderLock.h"

#include <QFile>

#include "ui/widgets/Controls.h"

namespace tarvelin {

namespace {

/// Whether a lock that can't be taken is held by somebody. What a dead holder left can be deleted,
/// whatever stands in it: half a lock, another machine's, one with a number that this process has
/// now. A lock that can't be made isn't there.
bool HaeltEinAnderer(QLockFile& schloss) {
    if (schloss.error() != QLockFile::LockFailedError || !QFile::exists(schloss.fileName())) {
        return false;
    }
    return !schloss.removeStaleLockFile() || !schloss.tryLock(0);
}

}  // namespace

Ordnerschloss::Ordnerschloss(const std::filesystem::path& programmordner)
    : m_datei(PathToQString(programmordner / "tarvelin.lock")) {
    // A window may stay open for weeks; only its death frees the folder.
    m_datei.setStaleLockTime(0);
    m_hatEinAnderer = !m_datei.tryLock(0) && HaeltEinAnderer(m_datei);
}

}  // namespace tarvelin
