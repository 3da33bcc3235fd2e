#include "LockFileInstance.h"

#include "store/DataRoot.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace ostrel {

namespace {

// When this machine started, from the kernel; 0 when it cannot be told.
qint64 bootTime() {
    QFile f(QStringLiteral("/proc/stat"));
    if (!f.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : f.readAll().split('\n'))
        if (line.startsWith("btime ")) return line.mid(6).trimmed().toLongLong();
    return 0;
}

} // namespace

LockFileInstance::LockFileInstance(const DataRoot& root, const QString& programName)
    : m_path(root.path(lockFileName(programName))), m_lock(std::make_unique<QLockFile>(m_path)) {
    // A lock is never stale by age: a copy may run for weeks. Only a dead owner frees it.
    m_lock->setStaleLockTime(0);
}

LockFileInstance::~LockFileInstance() = default;

QString LockFileInstance::lockFileName(const QString& programName) {
    return QStringLiteral("/.") + programName + QStringLiteral(".lock");
}

LockFileInstance::Holder LockFileInstance::heldBy() const {
    // A running copy keeps its lock file open under an exclusive lock for as long as it runs, so a
    // lock file nobody has locked belongs to no running copy, whatever it says.
    const int fd = ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return errno == ENOENT ? Holder::Nobody : Holder::Unknown;
    const int locked = ::flock(fd, LOCK_EX | LOCK_NB);
    const int error = errno;
    ::close(fd);
    if (locked != 0) return error == EWOULDBLOCK ? Holder::LiveCopy : Holder::Unknown;
    return Holder::Nobody;
}

bool LockFileInstance::isStale() const {
    qint64 owner = 0;
    QString host, app;
    // Empty or garbage: what a crash while it was being written leaves.
    if (!m_lock->getLockInfo(&owner, &host, &app)) return true;
    // A data folder moved over from another machine: no copy there can be running on this one.
    if (!host.isEmpty() && host != QSysInfo::machineHostName()) return true;
    // Older than this machine's start: its copy died with the machine.
    const qint64 boot = bootTime();
    const QFileInfo info(m_path);
    if (boot > 0 && info.lastModified().toSecsSinceEpoch() < boot) return true;
    return false;
}

bool LockFileInstance::TryAcquire() {
    m_unwritable = false;
    if (m_lock->isLocked()) return true;
    switch (heldBy()) {
    case Holder::LiveCopy:
        return false;
    case Holder::Nobody:
        if (QFileInfo::exists(m_path) && isStale()) m_lock->removeStaleLockFile();
        break;
    case Holder::Unknown:
        break;
    }
    if (m_lock->tryLock(0)) return true;
    // Only a lock someone holds means another copy; a lock file that cannot be made at all is the
    // folder refusing this user.
    const QLockFile::LockError error = m_lock->error();
    m_unwritable = (error == QLockFile::PermissionError || error == QLockFile::UnknownError) &&
                   heldBy() != Holder::LiveCopy;
    return false;
}

void LockFileInstance::Release() {
    if (m_lock->isLocked()) m_lock->unlock();
}

} // namespace ostrel
