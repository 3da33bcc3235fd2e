#include "InvoiceNumber.h"

#include "store/DiskRoutines.h"

#include <limits>

namespace ostrel {

qint32 LoadInvoiceNumber(DiskRoutines& disk, const QDate& today) {
    const qint32 year = today.year();
    qint32 number = year * 10000 + 1;
    if (disk.FileExists(kInvoiceNumberFile)) {
        TextReader file = disk.ReadTextFile(kInvoiceNumberFile);
        // A number no Long can hold ("1e300", "nan") makes the file a bad file, named, and nothing
        // is written over it; a text that is no number reads as 0.
        const qint64 stored = file.atEnd() ? 0
                                           : file.readIntegerLine(std::numeric_limits<qint32>::min(),
                                                                  std::numeric_limits<qint32>::max());
        number = stored != 0 ? static_cast<qint32>(stored) : year * 10000;
    }
    // The year is read off the front of the number's text, whatever its length.
    bool ok = false;
    const int leading = QString::number(number).left(4).toInt(&ok);
    if (!ok || leading < year) number = year * 10000 + 1;
    SaveInvoiceNumber(disk, number);
    return number;
}

void SaveInvoiceNumber(DiskRoutines& disk, qint32 number) {
    TextWriter w;
    w.writeNumber(number);
    disk.ReplaceTextFile(kInvoiceNumberFile, w);
}

} // namespace ostrel
