#pragma once

#include <QDate>

namespace ostrel {

class DiskRoutines;

// The last day the past-days sweep reaches: 366 in every year divisible by 4 (no century rule),
// else 365.
int purgeYearLength(int year);

// Removes last year's day files (days 1 to 366) and its DaySchedules<n> folders; the year folder
// and anything else in it stay. Nothing happens when last year has no folder, and a DaySchedules
// folder already gone is passed over, so a second start in a new year is quiet. Throws StoreError
// naming a folder that still holds other files, after the others are done.
void PurgeLastYear(DiskRoutines& disk, const QDate& today, int pointOfServiceCount);

// Removes this year's day files from the day after the last sweep ("/LastPurged.txt", else day 1)
// up to the year length, keeping dayOfYear and later. The new sweep day is written before anything
// is deleted.
void PurgePastDays(DiskRoutines& disk, const QDate& date, int dayOfYear, int pointOfServiceCount);

} // namespace ostrel
