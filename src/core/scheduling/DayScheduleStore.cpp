#include "DayScheduleStore.h"

#include "store/DiskRoutines.h"

namespace ostrel {

// Names are put together piece by piece: every day file shown or searched comes through here.
QString yearDirectory(int year) {
    if (year < 0) return QStringLiteral("/%1").arg(year, 4, 10, QLatin1Char('0'));
    QString name(1, u'/');
    const QString digits = QString::number(year);
    if (digits.size() < 4) name += QString(4 - digits.size(), u'0');
    return name += digits;
}

QString dayScheduleDirectory(int year, int pointOfService) {
    QString name = yearDirectory(year);
    name.reserve(name.size() + 24);
    name += u"/DaySchedules";
    return name += QString::number(pointOfService);
}

QString daySchedulePath(int year, int pointOfService, int dayOfYear) {
    QString name = dayScheduleDirectory(year, pointOfService);
    name += u'/';
    name += QString::number(dayOfYear);
    return name += u".txt";
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
