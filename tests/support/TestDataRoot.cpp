#include "TestDataRoot.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace ostrel::test {

TestDataRoot::TestDataRoot() : m_path(QDir(m_dir.path()).canonicalPath()) {
    m_root = std::make_unique<DataRoot>(m_path);
    m_disk = std::make_unique<DiskRoutines>(*m_root);
}

void TestDataRoot::writeBytes(const QString& relative, const QByteArray& bytes) const {
    const QString p = full(relative);
    QDir().mkpath(QFileInfo(p).path());
    QFile f(p);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) ADD_FAILURE() << "cannot write " << p.toStdString();
    f.write(bytes);
}

QByteArray TestDataRoot::readBytes(const QString& relative) const {
    QFile f(full(relative));
    if (!f.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot read " << relative.toStdString();
        return {};
    }
    return f.readAll();
}

void TestDataRoot::makeDir(const QString& relative) const { QDir().mkpath(full(relative)); }
void TestDataRoot::copyTree(const QString& tree) const {
    const QDir source(tree);
    QDirIterator it(tree, QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QFileInfo entry(it.next());
        const QString target = m_path + u'/' + source.relativeFilePath(entry.filePath());
        if (entry.isDir()) {
            QDir().mkpath(target);
        } else {
            QDir().mkpath(QFileInfo(target).path());
            if (!QFile::copy(entry.filePath(), target)) ADD_FAILURE() << "cannot copy " << target.toStdString();
        }
    }
}

bool TestDataRoot::isFile(const QString& relative) const { return QFileInfo(full(relative)).isFile(); }
bool TestDataRoot::isDir(const QString& relative) const { return QFileInfo(full(relative)).isDir(); }

QString legacyFixture() {
    const QString p = QStringLiteral(OSTREL_LEGACY_FIXTURE);
    return QFileInfo(p).isDir() ? QDir(p).canonicalPath() : QString();
}

} // namespace ostrel::test
