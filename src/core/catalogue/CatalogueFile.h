#pragma once

#include "store/DiskRoutines.h"
#include "store/Record.h"

#include <QString>
#include <QVector>

namespace ostrel {

// The catalogue counts its records in a byte, so no catalogue file may hold more than this.
constexpr int kMaxCatalogueRecords = 255;

// Every record of a catalogue file, in file order; the count is the file's length divided by the
// record length, rounded. More than kMaxCatalogueRecords is refused with a StoreError before
// anything is read. The file must exist.
QVector<Record> ReadCatalogueRecords(DiskRoutines& disk, const QString& name, int recordLength);

template <typename R> QVector<R> ReadCatalogueFile(DiskRoutines& disk) {
    QVector<R> out;
    for (const Record& r : ReadCatalogueRecords(disk, R::kFileName, R::kLength))
        out.append(R::fromRecord(r));
    return out;
}

// Throws the StoreError for a file that would hold more records than the catalogue can count.
void CheckCatalogueCount(const QString& name, qsizetype count);

// Replaces the file with these records, numbered from 1; the file and its backup are deleted first,
// and no records leaves no file.
void WriteCatalogueRecords(DiskRoutines& disk, const QString& name, int recordLength,
                           const QVector<Record>& records);

} // namespace ostrel
