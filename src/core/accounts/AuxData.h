#pragma once

#include <QString>
#include <QStringList>

namespace ostrel {

class DiskRoutines;

// The six free-text boxes of a customer and the six headings all customers share.
namespace AuxData {

constexpr int kBoxes = 6;
inline const QString kHeadingsFile = QStringLiteral("/AuxHeadings.txt");
// The line break a read puts after each field, as a multi-line text box holds it.
inline const QString kLineBreak = QStringLiteral("\r\n");

// Six headings read line by line; six empty ones when there is no file. A file of fewer than six
// lines stops with a StoreError naming it.
QStringList ReadAuxHeadings(DiskRoutines& disk);
// The file replaced by one printed line per heading; missing entries print as empty lines.
void SaveAuxHeadings(DiskRoutines& disk, const QStringList& headings);

// The six boxes of the account. Each existing Data.txt is read field by field to its end, each field
// followed by a line break: text with commas comes back split over several lines, without the
// quotes around a field.
QStringList LoadAuxData(DiskRoutines& disk, const QString& account);
// Every Data.txt of the account deleted, then each box printed into its own; the account's folders
// are made where they are missing.
void SaveAuxData(DiskRoutines& disk, const QString& account, const QStringList& boxes);

} // namespace AuxData

} // namespace ostrel
