#pragma once

#include "DaySchedule.h"
#include "controls/Controls.h"

#include <QDate>
#include <QString>

namespace ostrel {

class DiskRoutines;

// The data name of a day file: "/2026/DaySchedules3/40.txt" for the 40th day of 2026 of the third
// Point of Service. Which year a screen passes is that screen's rule; this only forms the name.
QString daySchedulePath(int year, int pointOfService, int dayOfYear);
// The folder of one Point of Service's day files of a year: "/2026/DaySchedules3".
QString dayScheduleDirectory(int year, int pointOfService);
// The folder of a year: "/2026".
QString yearDirectory(int year);

// Makes "/<year>/DaySchedules<n>" for n from 1 to the number of Points of Service (and the year
// folder when it is missing).
void EnsureDayScheduleDirectories(DiskRoutines& disk, const QDate& date, int pointOfServiceCount);

// Whether the day has a file (one absent but kept in /Backup is restored first).
bool dayScheduleExists(DiskRoutines& disk, int year, int pointOfService, int dayOfYear);

// A day with no file is an empty day. A file cut short throws StoreError and changes nothing.
DaySchedule readDaySchedule(DiskRoutines& disk, int year, int pointOfService, int dayOfYear);
// Replaces the day file whole with 48 lines. The year and DaySchedules folders are made when they
// are missing, so a day of a year the program has not yet been started in can be saved.
void writeDaySchedule(DiskRoutines& disk, int year, int pointOfService, int dayOfYear,
                      const DaySchedule& day);

// The same for a day grid: rows 1 to 48 of column 1.
void loadDaySchedule(DiskRoutines& disk, int year, int pointOfService, int dayOfYear, Grid& grid);
void saveDaySchedule(DiskRoutines& disk, int year, int pointOfService, int dayOfYear, const Grid& grid);

} // namespace ostrel
