#include "SafeReplace.h"

#include "FileOps.h"
#include "NativePath.h"
#include "StoreError.h"

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
    const int fd = ops.open(nativePath(folder), O_RDONLY | O_DIRECTORY, 0);
    if (fd < 0) return;
    ops.fsync(fd);
    ops.close(fd);
}

thread_local ReplaceBatch* t_batch = nullptr;

} // namespace

ReplaceBatch::ReplaceBatch() : m_outer(t_batch) { t_batch = this; }

ReplaceBatch::~ReplaceBatch() {
    try {
        commit();
    } catch (const StoreError&) {
        // Reported by the explicit commit, or an error is already on its way out of the batch.
    }
    t_batch = m_outer;
}

ReplaceBatch* ReplaceBatch::current() { return t_batch; }

void ReplaceBatch::add(Pending p) {
    // A file saved twice in one batch: the later bytes win, the earlier temporary goes.
    for (Pending& earlier : m_pending)
        if (earlier.target == p.target) {
            FileOps::current().unlink(earlier.temp);
            earlier = std::move(p);
            return;
        }
    m_pending.push_back(std::move(p));
}

void ReplaceBatch::discardFrom(std::size_t first) {
    for (std::size_t i = first; i < m_pending.size(); ++i) FileOps::current().unlink(m_pending[i].temp);
    m_pending.clear();
}

void ReplaceBatch::commit() {
    if (m_pending.empty()) return;
    FileOps& ops = FileOps::current();
    const QByteArray folder = nativePath(folderOf(pathFromNative(m_pending.front().target)));
    const int fd = ops.open(folder, O_RDONLY | O_DIRECTORY, 0);
    if (fd < 0 || ops.syncfs(fd) != 0) {
        const int error = errno;
        if (fd >= 0) ops.close(fd);
        const QString name = m_pending.front().name;
        discardFrom(0);
        throw StoreError(name, QStringLiteral("The file could not be written: ") + systemError(error));
    }
    for (std::size_t i = 0; i < m_pending.size(); ++i) {
        if (ops.rename(m_pending[i].temp, m_pending[i].target) == 0) continue;
        const int error = errno;
        const QString name = m_pending[i].name;
        discardFrom(i);
        ops.syncfs(fd);
        ops.close(fd);
        throw StoreError(name, QStringLiteral("The file could not be written: ") + systemError(error));
    }
    m_pending.clear();
    // The renames are durable once the folders' entries are on disk; a failure here comes after
    // every file has taken its place, so it is not reported as a failed save.
    ops.syncfs(fd);
    ops.close(fd);
}

void ReplaceFileWhole(const QString& path, const QString& name, const QByteArray& bytes) {
    FileOps& ops = FileOps::current();
    QString temp;
    int fd = -1;
    for (int attempt = 0; attempt < 100 && fd < 0; ++attempt) {
        temp = temporaryPath(path);
        fd = ops.open(nativePath(temp), O_WRONLY | O_CREAT | O_EXCL, 0666);
        if (fd < 0 && errno != EEXIST) break;
    }
    if (fd < 0) throw StoreError(name, QStringLiteral("The file could not be written: ") + systemError(errno));
    const QByteArray tempName = nativePath(temp);
    const auto fail = [&](int error) {
        if (fd >= 0) ops.close(fd);
        ops.unlink(tempName);
        throw StoreError(name, QStringLiteral("The file could not be written: ") + systemError(error));
    };
    if (ops.write(fd, bytes.constData(), bytes.size()) != bytes.size()) fail(errno ? errno : EIO);
    ReplaceBatch* batch = ReplaceBatch::current();
    if (!batch && ops.fsync(fd) != 0) fail(errno);
    const int closed = ops.close(fd);
    fd = -1;
    if (closed != 0) fail(errno);
    if (batch) {
        batch->add({tempName, nativePath(path), name});
        return;
    }
    if (ops.rename(tempName, nativePath(path)) != 0) fail(errno);
    syncFolder(ops, folderOf(path));
}

void MoveFileOver(const QString& fromPath, const QString& toPath, const QString& name) {
    FileOps& ops = FileOps::current();
    if (ops.rename(nativePath(fromPath), nativePath(toPath)) != 0)
        throw StoreError(name, QStringLiteral("The file could not be renamed: ") + systemError(errno));
    syncFolder(ops, folderOf(toPath));
}

void SyncFile(const QString& path, const QString& name) {
    FileOps& ops = FileOps::current();
    const int fd = ops.open(nativePath(path), O_RDONLY, 0);
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
