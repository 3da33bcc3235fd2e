#include "CatalogueFile.h"

#include "shell/RecordFormats.h"
#include "store/StoreError.h"

namespace ostrel {

namespace {
// Closes what a routine left open when it stops half-way; the normal path closes by itself.
class ClosedOnExit {
public:
    explicit ClosedOnExit(DiskRoutines& disk) : m_disk(disk) {}
    ~ClosedOnExit() {
        try {
            m_disk.CloseAllFiles();
        } catch (const StoreError&) {
            // The routine's own error is the one the user sees.
        }
    }
    ClosedOnExit(const ClosedOnExit&) = delete;
    ClosedOnExit& operator=(const ClosedOnExit&) = delete;

private:
    DiskRoutines& m_disk;
};
} // namespace

void CheckCatalogueCount(const QString& name, qsizetype count) {
    if (count <= kMaxCatalogueRecords) return;
    throw StoreError(name,
                     QStringLiteral("The catalogue holds %1 entries here, but a catalogue file can hold at "
                                    "most %2. Nothing was changed.")
                         .arg(count)
                         .arg(kMaxCatalogueRecords));
}

QVector<Record> ReadCatalogueRecords(DiskRoutines& disk, const QString& name, int recordLength) {
    // A damaged file is reported and kept from being saved over; what can be read is still shown.
    CheckRecordFileOnRead(disk, name);
    ClosedOnExit guard(disk);
    RandomFile& file = disk.OpenRandom(name, recordLength);
    const int count = file.recordCount();
    CheckCatalogueCount(name, count);
    QVector<Record> records;
    records.reserve(count);
    for (int r = 1; r <= count; ++r)
        records.append(file.get(r));
    disk.CloseAllFiles();
    return records;
}

void WriteCatalogueRecords(DiskRoutines& disk, const QString& name, int recordLength,
                           const QVector<Record>& records) {
    CheckCatalogueCount(name, records.size());
    if (records.isEmpty()) {
        disk.DeleteFileAndBackup(name);
        return;
    }
    QByteArray bytes;
    bytes.reserve(qsizetype(recordLength) * records.size());
    for (const Record& r : records)
        bytes += r.bytes();
    disk.ReplaceRecordFile(name, bytes);
}

} // namespace ostrel
