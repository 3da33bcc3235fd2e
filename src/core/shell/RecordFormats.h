#pragma once

#include "store/RecordFileJudge.h"

#include <QString>
#include <QVector>

namespace ostrel {

class DiskRoutines;

// The fixed-record files of the data folder with their fields, the one description both the
// program's reads and the checker judge them by.
const QVector<RecordFormat>& KnownRecordFormats();
// The format of a data name, or nullptr ("/services.txt" finds "/Services.txt").
const RecordFormat* RecordFormatFor(const QString& name);

// Judges a record file the program is about to read. A damaged one is reported to the owner
// (once a run) and kept from being written over; returns false then. An absent file is sound.
bool CheckRecordFileOnRead(DiskRoutines& disk, const QString& name);

} // namespace ostrel
