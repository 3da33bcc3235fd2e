#include "DayScheduleStore.h"

#include "store/DiskRoutines.h"

namespace ostrel {

QString yearDirectory(int year) {
    return QStringLiteral("/%1").arg(year, 4, 10, QLatin1Char('0'));
}

QString dayScheduleDirectory(int year, int pointOfService) {
    return yearDirectory(year) + QStringLiteral("/DaySchedules") + QString::number(pointOfService);
}

QString daySchedulePath(int year, int pointOfService, int dayOfYear) {
    return dayScheduleDirectory(year, pointOfService) + u'/' + QString::number(dayOfYear) +
           QStringLiteral(".txt");
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
    if (disk.FileExists(name)) {
        TextReader reader = disk.ReadTextFile(name);
        day = DaySchedule::fromStatements(reader);
    }
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
