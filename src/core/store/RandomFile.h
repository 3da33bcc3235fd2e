#pragma once

#include "Record.h"

#include <QString>

#include <functional>

namespace ostrel {

// A fixed-record file open for reading and writing. Record r (from 1) lies at (r - 1) * length.
// The file is read once into memory on first use; writes go straight to disk (through the store's
// file operations) and to that copy.
class RandomFile {
public:
    RandomFile(const QString& path, const QString& name, int recordLength);
    ~RandomFile();
    RandomFile(const RandomFile&) = delete;
    RandomFile& operator=(const RandomFile&) = delete;

    int recordLength() const { return m_length; }
    // Records in the file, counting a last partial record when at least half of it is there.
    int recordCount() const;
    // Record r; the part of a short last record that is missing, and any record past the end,
    // reads as zero bytes.
    Record get(int recordNumber);
    // Writes record r; writing to the record after the last extends the file by one record.
    void put(int recordNumber, const Record& record);
    qint64 byteSize() const { return m_size; }
    void close();
    const QString& name() const { return m_name; }
    // Runs before the first write; it may throw to refuse it.
    void setBeforeWrite(std::function<void()> check) { m_beforeWrite = std::move(check); }

private:
    void load();
    int m_fd = -1;
    QString m_name;
    int m_length;
    qint64 m_size = 0;
    QByteArray m_cache;
    bool m_loaded = false;
    std::function<void()> m_beforeWrite;
};

} // namespace ostrel
