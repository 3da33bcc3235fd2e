#include "InvoiceNumber.h"

#include "store/DiskRoutines.h"

#include <cmath>
#include <limits>
#include <optional>

namespace ostrel {

namespace {

// A stored number as a whole 32-bit value; nothing when the text is not one.
std::optional<qint32> storedNumber(const QString& text) {
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value)) return std::nullopt;
    const double whole = std::nearbyint(value);
    if (whole < std::numeric_limits<qint32>::min() || whole > std::numeric_limits<qint32>::max())
        return std::nullopt;
    return static_cast<qint32>(whole);
}

} // namespace

qint32 LoadInvoiceNumber(DiskRoutines& disk, const QDate& today) {
    const qint32 year = today.year();
    qint32 number = year * 10000 + 1;
    if (disk.FileExists(kInvoiceNumberFile)) {
        TextReader file = disk.ReadTextFile(kInvoiceNumberFile);
        const std::optional<qint32> stored = file.atEnd() ? std::nullopt : storedNumber(file.readLine());
        number = stored && *stored != 0 ? *stored : year * 10000;
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
