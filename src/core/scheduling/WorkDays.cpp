#include "WorkDays.h"

#include "store/DiskRoutines.h"
#include "store/StoreError.h"

namespace ostrel {

namespace {

const QString kHolidaysFile = QStringLiteral("/Holidays.txt");

bool isSaturday(const QDate& d) {
    return d.dayOfWeek() == Qt::Saturday;
}
bool isSunday(const QDate& d) {
    return d.dayOfWeek() == Qt::Sunday;
}

// Reads the date values from the top until one equals the date; a blank field (an empty line)
// is passed over.
bool listedAsHoliday(const QByteArray& bytes, const QDate& date) {
    TextReader reader(bytes, kHolidaysFile);
    while (!reader.atEnd()) {
        const TextField field = reader.readField();
        if (!field.quoted && field.raw.trimmed().isEmpty()) continue;
        const QDate holiday = field.toDate();
        if (!holiday.isValid())
            throw StoreError(kHolidaysFile, QStringLiteral("\"%1\" is not a date.").arg(field.toString()));
        if (holiday == date) return true;
    }
    return false;
}

} // namespace

QDate SkipToWorkDay(const QDate& date, int workWeekCode) {
    QDate d = date;
    switch (workWeekCode) {
    case kWorkWeekMondayToFriday:
        if (isSaturday(d)) d = d.addDays(2);
        if (isSunday(d)) d = d.addDays(1);
        break;
    case kWorkWeekMondayToSaturday:
        if (isSunday(d)) d = d.addDays(1);
        break;
    case kWorkWeekSundayToFriday:
        if (isSaturday(d)) d = d.addDays(1);
        break;
    default:
        break;
    }
    return d;
}

QDate SkipHolidays(DiskRoutines& disk, const QDate& date, int workWeekCode) {
    QDate d = date;
    if (const std::optional<TextReader> holidays = disk.ReadTextFileIfPresent(kHolidaysFile)) {
        // Read once; each candidate day is looked for from the top of the list again.
        const QByteArray& bytes = holidays->bytes();
        while (listedAsHoliday(bytes, d))
            d = d.addDays(1);
    }
    disk.CloseAllFiles();
    return SkipToWorkDay(d, workWeekCode);
}

} // namespace ostrel
