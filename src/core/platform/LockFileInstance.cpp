#include "LockFileInstance.h"

#include "store/DataRoot.h"

#include <QCoreApplication>
#include <QLockFile>

namespace ostrel {

LockFileInstance::LockFileInstance(const DataRoot& root, const QString& programName)
    : m_path(root.path(lockFileName(programName))), m_lock(std::make_unique<QLockFile>(m_path)) {
    // A lock is never stale by age: a copy may run for weeks. Only a dead owner frees it.
    m_lock->setStaleLockTime(0);
}

LockFileInstance::~LockFileInstance() = default;

QString LockFileInstance::lockFileName(const QString& programName) {
    return QStringLiteral("/.") + programName + QStringLiteral(".lock");
}

bool LockFileInstance::TryAcquire() {
    if (m_lock->isLocked()) return true;
    // Another lock object of this very process holds the file. Qt would judge it stale when the
    // process has no application name to compare, so settle that case here.
    qint64 owner = 0;
    QString host, app;
    if (m_lock->getLockInfo(&owner, &host, &app) && owner == QCoreApplication::applicationPid()) return false;
    return m_lock->tryLock(0);
}

void LockFileInstance::Release() {
    if (m_lock->isLocked()) m_lock->unlock();
}

} // namespace ostrel
