#pragma once

#include <QDate>
#include <QString>

namespace ostrel {

class DiskRoutines;

// /OIInvoiceNo.txt: the next computer-generated invoice number, one number on one line.
inline const QString kInvoiceNumberFile = QStringLiteral("/OIInvoiceNo.txt");

// The number the next invoice takes, saved back at once. A missing file starts the year at
// <year>0001; a file that holds no number or 0 gives <year>0000. A number whose first four digits,
// read as text, are below this year restarts at <year>0001, so 1500 restarts and 3000 does not.
qint32 LoadInvoiceNumber(DiskRoutines& disk, const QDate& today);
// Replaces the file and drops its backup copy.
void SaveInvoiceNumber(DiskRoutines& disk, qint32 number);

} // namespace ostrel
