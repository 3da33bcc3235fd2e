#pragma once

#include <QDate>

namespace ostrel {

class DiskRoutines;

// The days that may hold appointments, as the setting stores them.
constexpr int kWorkWeekMondayToFriday = 5;
constexpr int kWorkWeekMondayToSaturday = 61;
constexpr int kWorkWeekSundayToFriday = 62;
constexpr int kWorkWeekEveryDay = 7;

// Moves a date forward (never back) to a day the work week allows. An unknown code moves nothing.
QDate SkipToWorkDay(const QDate& date, int workWeekCode);

// Moves a date past the holidays of "/Holidays.txt" (absent: none), then to a work day. The work
// day found is not tested again, so a holiday just after a weekend stays. Throws StoreError when
// the file holds something other than dates.
QDate SkipHolidays(DiskRoutines& disk, const QDate& date, int workWeekCode);

} // namespace ostrel
