#include "AppInfo.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace ostrel {

AppInfo::AppInfo(const QString& executablePath)
    : AppInfo(executablePath, OSTREL_VERSION_MAJOR, OSTREL_VERSION_MINOR, OSTREL_VERSION_PATCH) {}

AppInfo::AppInfo(const QString& executablePath, int major, int minor, int revision)
    : m_major(major), m_minor(minor), m_revision(revision) {
    const QFileInfo info(executablePath);
    // "Ostrel.App.exe" keeps "Ostrel.App": only the last extension goes.
    m_programName = info.completeBaseName();
    m_path = info.absolutePath();
}

AppInfo AppInfo::fromProcess() {
    if (QCoreApplication::instance()) return AppInfo(QCoreApplication::applicationFilePath());
    // No application object (a command-line tool, a test): ask the kernel.
    return AppInfo(QFileInfo(QStringLiteral("/proc/self/exe")).canonicalFilePath());
}

QString AppInfo::version() const {
    return QStringLiteral("%1.%2.%3").arg(m_major).arg(m_minor).arg(m_revision);
}

} // namespace ostrel
