#include "RandomFile.h"

#include "StoreError.h"

#include <cmath>
#include <cstring>

namespace ostrel {

RandomFile::RandomFile(const QString& path, const QString& name, int recordLength)
    : m_file(path), m_name(name), m_length(recordLength) {
    if (recordLength <= 0) throw StoreError(name, QStringLiteral("The record length must be positive."));
    if (!m_file.open(QIODevice::ReadWrite))
        throw StoreError(name, QStringLiteral("The file cannot be opened: ") + m_file.errorString());
    m_size = m_file.size();
}

int RandomFile::recordCount() const {
    return static_cast<int>(std::nearbyint(static_cast<double>(m_size) / m_length));
}

void RandomFile::load() {
    if (m_loaded) return;
    m_file.seek(0);
    m_cache = m_file.readAll();
    if (m_cache.size() != m_size)
        throw StoreError(m_name, QStringLiteral("The file could not be read: ") + m_file.errorString());
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
    if (!m_file.seek(offset) || m_file.write(record.bytes()) != m_length || !m_file.flush())
        throw StoreError(m_name, QStringLiteral("The record could not be written: ") + m_file.errorString());
    m_size = std::max(m_size, offset + m_length);
    if (m_loaded) {
        if (m_cache.size() < offset + m_length) m_cache.resize(offset + m_length, '\0');
        std::memcpy(m_cache.data() + offset, record.bytes().constData(), static_cast<size_t>(m_length));
    }
}

void RandomFile::close() { m_file.close(); }

} // namespace ostrel
