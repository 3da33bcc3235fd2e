#include "RandomFile.h"

#include "FileOps.h"
#include "NativePath.h"
#include "StoreError.h"

#include <cmath>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ostrel {

namespace {
QString systemError() { return QString::fromLocal8Bit(std::strerror(errno)); }
} // namespace

RandomFile::RandomFile(const QString& path, const QString& name, int recordLength)
    : m_name(name), m_length(recordLength) {
    if (recordLength <= 0) throw StoreError(name, QStringLiteral("The record length must be positive."));
    m_fd = FileOps::current().open(nativePath(path), O_RDWR | O_CREAT, 0666);
    if (m_fd < 0) throw StoreError(name, QStringLiteral("The file cannot be opened: ") + systemError());
    struct stat st {};
    if (::fstat(m_fd, &st) != 0) {
        const QString why = systemError();
        close();
        throw StoreError(name, QStringLiteral("The file cannot be opened: ") + why);
    }
    m_size = st.st_size;
}

RandomFile::~RandomFile() { close(); }

int RandomFile::recordCount() const {
    return static_cast<int>(std::nearbyint(static_cast<double>(m_size) / m_length));
}

void RandomFile::load() {
    if (m_loaded) return;
    m_cache.resize(m_size);
    qint64 done = 0;
    while (done < m_size) {
        const ssize_t n = ::pread(m_fd, m_cache.data() + done, static_cast<size_t>(m_size - done), done);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            const QString why = n < 0 ? systemError() : QStringLiteral("the file is shorter than it was");
            m_cache.clear();
            throw StoreError(m_name, QStringLiteral("The file could not be read: ") + why);
        }
        done += n;
    }
    m_loaded = true;
}

Record RandomFile::get(int recordNumber) {
    if (recordNumber < 1) throw StoreError(m_name, QStringLiteral("Bad record number %1.").arg(recordNumber));
    load();
    Record r(m_length);
    const qint64 offset = static_cast<qint64>(recordNumber - 1) * m_length;
    if (offset < m_cache.size()) {
        const qint64 n = std::min<qint64>(m_length, m_cache.size() - offset);
        std::memcpy(r.bytes().data(), m_cache.constData() + offset, static_cast<size_t>(n));
    }
    return r;
}

void RandomFile::put(int recordNumber, const Record& record) {
    if (recordNumber < 1) throw StoreError(m_name, QStringLiteral("Bad record number %1.").arg(recordNumber));
    if (record.length() != m_length)
        throw StoreError(m_name, QStringLiteral("A record of %1 bytes does not fit records of %2.")
                                     .arg(record.length())
                                     .arg(m_length));
    const qint64 offset = static_cast<qint64>(recordNumber - 1) * m_length;
    if (m_fd < 0) throw StoreError(m_name, QStringLiteral("The file is closed."));
    if (m_beforeWrite) {
        m_beforeWrite();
        m_beforeWrite = nullptr;
    }
    if (FileOps::current().pwrite(m_fd, record.bytes().constData(), m_length, offset) != m_length)
        throw StoreError(m_name, QStringLiteral("The record could not be written: ") + systemError());
    m_size = std::max(m_size, offset + m_length);
    if (m_loaded) {
        if (m_cache.size() < offset + m_length) m_cache.resize(offset + m_length, '\0');
        std::memcpy(m_cache.data() + offset, record.bytes().constData(), static_cast<size_t>(m_length));
    }
}

void RandomFile::close() {
    if (m_fd < 0) return;
    FileOps::current().close(m_fd);
    m_fd = -1;
}

} // namespace ostrel
