#include "DayScheduleStore.h"

#include "store/DiskRoutines.h"

#include <charconv>

namespace ostrel {

namespace {

// Names are put together piece by piece, in one string: every day file shown or searched comes
// through here.
void appendNumber(QString& name, int value, int width = 0) {
    char digits[16];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, value);
    const qsizetype length = end.ptr - digits;
    for (qsizetype pad = length; pad < width; ++pad)
        name += u'0';
    name += QLatin1String(digits, length);
}

} // namespace

QString yearDirectory(int year) {
    if (year < 0) return QStringLiteral("/%1").arg(year, 4, 10, QLatin1Char('0'));
    QString name;
    name.reserve(48);
    name += u'/';
    appendNumber(name, year, 4);
    return name;
}

QString dayScheduleDirectory(int year, int pointOfService) {
    QString name = yearDirectory(year);
    name += u"/DaySchedules";
    appendNumber(name, pointOfService);
    return name;
}

QString daySchedulePath(int year, int pointOfService, int dayOfYear) {
    QString name = dayScheduleDirectory(year, pointOfService);
    name += u'/';
    appendNumber(name, dayOfYear);
    name += u".txt";
    return name;
}

void EnsureDayScheduleDirectories(DiskRoutines& disk, const QDate& date, int pointOfServiceCount) {
    if (pointOfServiceCount < 1) return;
    disk.MakeDirectoryIfAbsent(yearDirectory(date.year()));
    for (int n = 1; n <= pointOfServiceCount; ++n)
        disk.MakeDirectoryIfAbsent(dayScheduleDirectory(date.year(), n));
}

bool dayScheduleExists(DiskRoutines& disk, int year, int pointOfService, int dayOfYear) {
    return disk.FileExists(daySchedulePath(year, pointOfService, dayOfYear));
}

DaySchedule readDaySchedule(DiskRoutines& disk, int year, int pointOfService, int dayOfYear) {
    const QString name = daySchedulePath(year, pointOfService, dayOfYear);
    DaySchedule day;
    if (std::optional<TextReader> reader = disk.ReadTextFileIfPresent(name)) day = DaySchedule::fromStatements(*reader);
    disk.CloseAllFiles();
    return day;
}

void writeDaySchedule(DiskRoutines& disk, int year, int pointOfService, int dayOfYear,
                      const DaySchedule& day) {
    disk.MakeDirectoryIfAbsent(yearDirectory(year));
    disk.MakeDirectoryIfAbsent(dayScheduleDirectory(year, pointOfService));
    // A day file is never patched: the new text replaces the old file whole, in one step.
    disk.CloseAllFiles();
    disk.OpenForOutput(daySchedulePath(year, pointOfService, dayOfYear)) = day.toStatements();
    disk.CloseAllFiles();
}

void loadDaySchedule(DiskRoutines& disk, int year, int pointOfService, int dayOfYear, Grid& grid) {
    readDaySchedule(disk, year, pointOfService, dayOfYear).toGrid(grid);
}

void saveDaySchedule(DiskRoutines& disk, int year, int pointOfService, int dayOfYear, const Grid& grid) {
    writeDaySchedule(disk, year, pointOfService, dayOfYear, DaySchedule::fromGrid(grid));
}

} // namespace ostrel
