#include "SafeReplace.h"

#include "FileOps.h"
#include "StoreError.h"

#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <cerrno>
#include <cstring>
#include <fcntl.h>

namespace ostrel {

namespace {

QString systemError(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

QString folderOf(const QString& path) {
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash <= 0 ? QStringLiteral("/") : path.left(slash);
}

QString temporaryPath(const QString& path) {
    static const char kChars[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    QString t = path + u'.';
    for (int i = 0; i < 6; ++i) t += QLatin1Char(kChars[QRandomGenerator::global()->bounded(62)]);
    return t;
}

// The rename is durable once the folder's entry is on disk. A failure here comes after the new
// file has taken its place, so it is not reported as a failed save.
void syncFolder(FileOps& ops, const QString& folder) {
    const int fd = ops.open(QFile::encodeName(folder), O_RDONLY | O_DIRECTORY, 0);
    if (fd < 0) return;
    ops.fsync(fd);
    ops.close(fd);
}

} // namespace

void ReplaceFileWhole(const QString& path, const QString& name, const QByteArray& bytes) {
    FileOps& ops = FileOps::current();
    QString temp;
    int fd = -1;
    for (int attempt = 0; attempt < 100 && fd < 0; ++attempt) {
        temp = temporaryPath(path);
        fd = ops.open(QFile::encodeName(temp), O_WRONLY | O_CREAT | O_EXCL, 0666);
        if (fd < 0 && errno != EEXIST) break;
    }
    if (fd < 0) throw StoreError(name, QStringLiteral("The file could not be written: ") + systemError(errno));
    const QByteArray tempName = QFile::encodeName(temp);
    const auto fail = [&](int error) {
        if (fd >= 0) ops.close(fd);
        ops.unlink(tempName);
        throw StoreError(name, QStringLiteral("The file could not be written: ") + systemError(error));
    };
    if (ops.write(fd, bytes.constData(), bytes.size()) != bytes.size()) fail(errno ? errno : EIO);
    if (ops.fsync(fd) != 0) fail(errno);
    const int closed = ops.close(fd);
    fd = -1;
    if (closed != 0) fail(errno);
    if (ops.rename(tempName, QFile::encodeName(path)) != 0) fail(errno);
    syncFolder(ops, folderOf(path));
}

void MoveFileOver(const QString& fromPath, const QString& toPath, const QString& name) {
    FileOps& ops = FileOps::current();
    if (ops.rename(QFile::encodeName(fromPath), QFile::encodeName(toPath)) != 0)
        throw StoreError(name, QStringLiteral("The file could not be renamed: ") + systemError(errno));
    syncFolder(ops, folderOf(toPath));
}

void SyncFile(const QString& path, const QString& name) {
    FileOps& ops = FileOps::current();
    const int fd = ops.open(QFile::encodeName(path), O_RDONLY, 0);
    if (fd < 0) throw StoreError(name, QStringLiteral("The file cannot be opened: ") + systemError(errno));
    const int synced = ops.fsync(fd);
    const int error = errno;
    ops.close(fd);
    if (synced != 0) throw StoreError(name, QStringLiteral("The file could not be written: ") + systemError(error));
}

bool IsLeftoverTemporaryName(const QString& fileName) {
    static const QRegularExpression pattern(QStringLiteral("^.+\\.(txt|tmp|rtf)\\.[A-Za-z0-9]{6}$"),
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern.match(fileName).hasMatch();
}

} // namespace ostrel
