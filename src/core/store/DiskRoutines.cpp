#include "DiskRoutines.h"

#include "FileOps.h"
#include "NativePath.h"
#include "SafeReplace.h"
#include "StoreError.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace ostrel {

namespace {
QString systemError() { return QString::fromLocal8Bit(std::strerror(errno)); }
const QString kBackup = QStringLiteral("/Backup");
} // namespace

DiskRoutines::~DiskRoutines() {
    try {
        CloseAllFiles();
    } catch (const StoreError&) {
        // Nothing can be reported any more; what was committed is on disk.
    }
}

bool DiskRoutines::FileExists(const QString& name) {
    return m_root.resolve(name).isFile() || restoreFromBackup(name);
}

bool DiskRoutines::restoreFromBackup(const QString& name) {
    if (!m_root.resolve(kBackup + name).isFile()) return false;
    CopyDataFile(kBackup + name, name);
    return true;
}

qint16 DiskRoutines::FileRecordCount(const QString& name, qint16 recordLength) {
    if (!FileExists(name)) return 0;
    if (recordLength <= 0) throw StoreError(name, QStringLiteral("The record length must be positive."));
    const qint64 size = m_root.resolve(name).size;
    const double count = std::nearbyint(static_cast<double>(size) / recordLength);
    if (count > 32767)
        throw StoreError(name, QStringLiteral("The file holds more than 32,767 records, the most it may hold."));
    return static_cast<qint16>(count);
}

int DiskRoutines::FreeFile() const {
    int n = 1;
    while (m_channels.count(n)) ++n;
    return n;
}

int DiskRoutines::openChannel(std::unique_ptr<Channel> ch) {
    const int n = FreeFile();
    m_channels.emplace(n, std::move(ch));
    return n;
}

DiskRoutines::Channel& DiskRoutines::channel(int number, const char* kind) {
    const auto it = m_channels.find(number);
    if (it == m_channels.end())
        throw StoreError(QString(), QStringLiteral("Channel %1 is not open for %2.").arg(number).arg(QLatin1String(kind)));
    return *it->second;
}

TextReader& DiskRoutines::Input(int n) {
    Channel& c = channel(n, "input");
    if (c.mode != Channel::Mode::Input) throw StoreError(c.name, QStringLiteral("The file is not open for input."));
    return c.reader;
}
TextWriter& DiskRoutines::Output(int n) {
    Channel& c = channel(n, "output");
    if (c.mode != Channel::Mode::Output && c.mode != Channel::Mode::Append)
        throw StoreError(c.name, QStringLiteral("The file is not open for output."));
    return c.writer;
}
RandomFile& DiskRoutines::Random(int n) {
    Channel& c = channel(n, "records");
    if (c.mode != Channel::Mode::Random) throw StoreError(c.name, QStringLiteral("The file is not open for records."));
    return *c.random;
}

namespace {

// The buffer a file is read into. Small files share one, used again as soon as nothing holds the
// last file's bytes: a fresh block of a kilobyte or more for every file would make the allocator
// sweep up all the small blocks freed before it (the texts of the last day shown), and the texts
// made from the new file would then be carved out the slow way.
QByteArray& readBuffer(qsizetype size, QByteArray& own) {
    constexpr qsizetype kSharedUpTo = 64 * 1024;
    if (size > kSharedUpTo) {
        own = QByteArray(size, Qt::Uninitialized);
        return own;
    }
    thread_local QByteArray shared;
    if (!shared.isDetached() || shared.capacity() > 4 * std::max<qsizetype>(size, 4096))
        shared = QByteArray(); // still held by a reader, or too big to lend for a small file
    shared.resize(size);
    return shared;
}

// A regular file's bytes, or nothing when no regular file stands at the path.
std::optional<QByteArray> readRegularFile(const QString& path, const QString& name) {
    int fd;
    do fd = ::open(nativePath(path).constData(), O_RDONLY | O_CLOEXEC);
    while (fd < 0 && errno == EINTR);
    if (fd < 0) {
        if (errno == ENOENT || errno == ENOTDIR) return std::nullopt;
        throw StoreError(name, QStringLiteral("The file cannot be opened: ") + systemError());
    }
    struct Closer {
        int fd;
        ~Closer() { ::close(fd); }
    } closer{fd};
    struct stat st {};
    if (::fstat(fd, &st) != 0) throw StoreError(name, QStringLiteral("The file cannot be opened: ") + systemError());
    if (!S_ISREG(st.st_mode)) return std::nullopt;
    // The bytes the file holds as it was measured on opening (or fewer, when it shrank meanwhile).
    QByteArray own;
    QByteArray& bytes = readBuffer(static_cast<qsizetype>(st.st_size), own);
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::read(fd, bytes.data() + done, static_cast<size_t>(bytes.size() - done));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) throw StoreError(name, QStringLiteral("The file cannot be read: ") + systemError());
        if (n == 0) break;
        done += n;
    }
    bytes.resize(done);
    return bytes;
}

} // namespace

std::optional<TextReader> DiskRoutines::readIfFile(const QString& name) {
    // Most names are spelled as on disk: opened straight away, with no look at the disk before.
    if (std::optional<QByteArray> bytes = readRegularFile(m_root.spelledPath(name), name))
        return TextReader(std::move(*bytes), name);
    const DataRoot::Entry e = m_root.resolveNotAsSpelled(name);
    if (!e.isFile()) return std::nullopt;
    if (std::optional<QByteArray> bytes = readRegularFile(e.path, name)) return TextReader(std::move(*bytes), name);
    return std::nullopt;
}

TextReader DiskRoutines::ReadTextFileAt(const QString& path, const QString& name) {
    if (std::optional<QByteArray> bytes = readRegularFile(path, name)) return TextReader(std::move(*bytes), name);
    throw StoreError(name, QStringLiteral("File not found."));
}

TextReader DiskRoutines::ReadTextFile(const QString& name) {
    if (std::optional<TextReader> reader = readIfFile(name)) return std::move(*reader);
    throw StoreError(name, QStringLiteral("File not found."));
}

std::optional<TextReader> DiskRoutines::ReadTextFileIfPresent(const QString& name) {
    if (std::optional<TextReader> reader = readIfFile(name)) return reader;
    if (!restoreFromBackup(name)) return std::nullopt;
    return ReadTextFile(name);
}

TextReader& DiskRoutines::OpenForInput(const QString& name) {
    auto ch = std::make_unique<Channel>();
    ch->mode = Channel::Mode::Input;
    ch->name = name;
    ch->reader = ReadTextFile(name);
    PrimaryChannel = static_cast<qint16>(openChannel(std::move(ch)));
    return m_channels.at(PrimaryChannel)->reader;
}

DataRoot::Entry DiskRoutines::writableTarget(const QString& name) const {
    const DataRoot::Entry e = m_root.resolve(name);
    if (e.isDirectory()) throw StoreError(name, QStringLiteral("A folder of that name is in the way."));
    const QString parent = e.path.left(e.path.lastIndexOf(u'/'));
    struct stat st {};
    if (::stat(nativePath(parent).constData(), &st) != 0 || !S_ISDIR(st.st_mode))
        throw StoreError(name, QStringLiteral("The folder that should hold this file does not exist."));
    return e;
}

TextWriter& DiskRoutines::OpenForOutput(const QString& name) {
    auto ch = std::make_unique<Channel>();
    ch->mode = Channel::Mode::Output;
    ch->name = name;
    ch->target = writableTarget(name);
    PrimaryChannel = static_cast<qint16>(openChannel(std::move(ch)));
    return m_channels.at(PrimaryChannel)->writer;
}

TextWriter& DiskRoutines::OpenForAppend(const QString& name) {
    CloseAllFiles();
    auto ch = std::make_unique<Channel>();
    ch->mode = Channel::Mode::Append;
    ch->name = name;
    ch->target = writableTarget(name);
    PrimaryChannel = static_cast<qint16>(openChannel(std::move(ch)));
    return m_channels.at(PrimaryChannel)->writer;
}

RandomFile& DiskRoutines::OpenRandom(const QString& name, int recordLength) {
    auto ch = std::make_unique<Channel>();
    ch->mode = Channel::Mode::Random;
    ch->name = name;
    ch->target = writableTarget(name);
    const bool created = !ch->target.exists();
    ch->random = std::make_unique<RandomFile>(ch->target.path, name, recordLength);
    if (m_damaged.contains(ch->target.path)) {
        const QString path = ch->target.path;
        ch->random->setBeforeWrite([this, path, name] { mayWriteOver(path, name); });
    }
    if (created) m_root.noteCreated(ch->target.path);
    PrimaryChannel = static_cast<qint16>(openChannel(std::move(ch)));
    return *m_channels.at(PrimaryChannel)->random;
}

RandomFile& DiskRoutines::OpenRandomSecondary(const QString& name, int recordLength) {
    const qint16 primary = PrimaryChannel;
    RandomFile& f = OpenRandom(name, recordLength);
    SecondaryChannel = PrimaryChannel;
    PrimaryChannel = primary;
    return f;
}

void DiskRoutines::SetDamageHooks(DamageReport report, OverwriteQuestion ask) {
    m_reportDamage = std::move(report);
    m_askOverwrite = std::move(ask);
}

void DiskRoutines::ReportDamage(const QString& name, const QString& problem) {
    const QString path = m_root.resolve(name).path;
    if (m_damaged.contains(path)) return;
    m_damaged.insert(path, problem);
    if (m_reportDamage) m_reportDamage(name, problem);
}

bool DiskRoutines::IsDamaged(const QString& name) const { return m_damaged.contains(m_root.resolve(name).path); }

void DiskRoutines::mayWriteOver(const QString& path, const QString& name) {
    const auto it = m_damaged.constFind(path);
    if (it == m_damaged.constEnd()) return;
    if (m_askOverwrite && m_askOverwrite(name, it.value())) {
        m_damaged.remove(path);
        return;
    }
    throw DamagedFileKept(name, QStringLiteral("This file was found damaged when it was read, so it was left as it is: "
                                          "nothing was saved to it."));
}

void DiskRoutines::writeWhole(const DataRoot::Entry& target, const QString& name, const QByteArray& bytes) {
    mayWriteOver(target.path, name);
    ReplaceFileWhole(target.path, name, bytes);
    if (!target.exists()) m_root.noteCreated(target.path);
}

void DiskRoutines::commit(Channel& c) {
    switch (c.mode) {
    case Channel::Mode::Input:
        break;
    case Channel::Mode::Output:
        writeWhole(c.target, c.name, c.writer.bytes());
        break;
    case Channel::Mode::Append: {
        // The old lines and the new ones take the file's place in one step: a crash or a failed
        // write leaves the file as it was or with every new line, never with part of one.
        QByteArray bytes;
        if (c.target.isFile()) {
            QFile in(c.target.path);
            if (!in.open(QIODevice::ReadOnly))
                throw StoreError(c.name, QStringLiteral("The file cannot be opened: ") + in.errorString());
            bytes = in.readAll();
        }
        bytes += c.writer.bytes();
        writeWhole(c.target, c.name, bytes);
        break;
    }
    case Channel::Mode::Random:
        c.random->close();
        break;
    }
}

void DiskRoutines::Close(int number) {
    const auto it = m_channels.find(number);
    if (it == m_channels.end()) return;
    std::unique_ptr<Channel> c = std::move(it->second);
    m_channels.erase(it);
    commit(*c);
}

void DiskRoutines::CloseAllFiles() {
    std::optional<StoreError> first;
    while (!m_channels.empty()) {
        try {
            Close(m_channels.begin()->first);
        } catch (const StoreError& e) {
            if (!first) first = e;
        }
    }
    if (first) throw *first;
}

void DiskRoutines::DeleteDataFile(const QString& name) {
    CloseAllFiles();
    const DataRoot::Entry e = m_root.resolve(name);
    if (!e.isFile()) return;
    mayWriteOver(e.path, name);
    if (FileOps::current().unlink(nativePath(e.path)) != 0)
        throw StoreError(name, QStringLiteral("The file could not be deleted: ") + systemError());
    m_root.noteRemoved(e.path);
}

void DiskRoutines::DeleteFileAndBackup(const QString& name) {
    DeleteDataFile(kBackup + name);
    DeleteDataFile(name);
}

void DiskRoutines::MakeDirectoryIfAbsent(const QString& name) {
    const DataRoot::Entry e = m_root.resolve(name);
    if (e.isDirectory()) return;
    if (e.exists()) throw StoreError(name, QStringLiteral("A file of that name is in the way of the folder."));
    if (::mkdir(nativePath(e.path).constData(), 0777) != 0)
        throw StoreError(name, QStringLiteral("The folder could not be made: ") + systemError());
    m_root.noteCreated(e.path);
}

void DiskRoutines::RemoveDataDirectory(const QString& name) {
    const DataRoot::Entry e = m_root.resolve(name);
    if (!e.isDirectory()) throw StoreError(name, QStringLiteral("Path not found."));
    if (::rmdir(nativePath(e.path).constData()) != 0)
        throw StoreError(name, QStringLiteral("The folder could not be removed: ") + systemError());
    m_root.noteRemoved(e.path);
}

void DiskRoutines::RenameDataFile(const QString& oldName, const QString& newName) {
    const DataRoot::Entry from = m_root.resolve(oldName);
    const DataRoot::Entry to = m_root.resolve(newName);
    if (!from.isFile()) throw StoreError(oldName, QStringLiteral("File not found."));
    if (to.exists() && to.path != from.path) throw StoreError(newName, QStringLiteral("File already exists."));
    writableTarget(newName);
    MoveFileOver(from.path, to.path, oldName);
    m_root.noteRemoved(from.path);
    m_root.noteCreated(to.path);
    DeleteDataFile(oldName);
}

void DiskRoutines::CopyDataFile(const QString& sourceName, const QString& targetName) {
    const DataRoot::Entry source = m_root.resolve(sourceName);
    if (!source.isFile()) throw StoreError(sourceName, QStringLiteral("File not found."));
    QFile in(source.path);
    if (!in.open(QIODevice::ReadOnly))
        throw StoreError(sourceName, QStringLiteral("The file cannot be opened: ") + in.errorString());
    writeWhole(writableTarget(targetName), targetName, in.readAll());
}

void DiskRoutines::PutRecords(const QString& name, int recordLength, qint64 firstRecord,
                              const QByteArray& records) {
    if (recordLength <= 0 || firstRecord < 1)
        throw StoreError(name, QStringLiteral("A record was to be written at an impossible place."));
    const DataRoot::Entry target = writableTarget(name);
    QByteArray bytes;
    if (target.isFile()) {
        QFile in(target.path);
        if (!in.open(QIODevice::ReadOnly))
            throw StoreError(name, QStringLiteral("The file cannot be opened: ") + in.errorString());
        bytes = in.readAll();
    }
    const qint64 offset = (firstRecord - 1) * recordLength;
    const qint64 oldSize = bytes.size();
    if (oldSize < offset + records.size()) {
        bytes.resize(offset + records.size());
        std::memset(bytes.data() + oldSize, 0, static_cast<size_t>(bytes.size() - oldSize));
    }
    std::memcpy(bytes.data() + offset, records.constData(), static_cast<size_t>(records.size()));
    writeWhole(target, name, bytes);
}

void DiskRoutines::ReplaceTextFile(const QString& name, const TextWriter& content) {
    DeleteDataFile(kBackup + name);
    OpenForOutput(name) = content;
    CloseAllFiles();
}

void DiskRoutines::ReplaceWithFile(const QString& sourceName, const QString& targetName) {
    CloseAllFiles();
    const DataRoot::Entry from = m_root.resolve(sourceName);
    if (!from.isFile()) throw StoreError(sourceName, QStringLiteral("File not found."));
    const DataRoot::Entry to = writableTarget(targetName);
    mayWriteOver(to.path, targetName);
    DeleteDataFile(kBackup + targetName);
    SyncFile(from.path, sourceName);
    MoveFileOver(from.path, to.path, targetName);
    m_root.noteRemoved(from.path);
    if (!to.exists()) m_root.noteCreated(to.path);
}

void DiskRoutines::ReplaceRecordFile(const QString& name, const QByteArray& records) {
    DeleteDataFile(kBackup + name);
    writeWhole(writableTarget(name), name, records);
}

} // namespace ostrel
