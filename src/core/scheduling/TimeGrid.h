#pragma once

#include "controls/Controls.h"

#include <QString>

namespace ostrel {

// The day grid: row 0 is the head, rows 1 to 48 are the quarter-hour slots. The row number is
// the only time value the scheduling logic uses; labels are for the eye only.
constexpr int kFirstTimeSlot = 1;
constexpr int kLastTimeSlot = 48;
constexpr int kTimeSlotCount = 48;
constexpr int kDayGridRows = 49;
constexpr int kTimeLabelColumn = 0;
constexpr int kSlotTextColumn = 1;

// Fills a start row's continuation rows; kept with its fifteen leading blanks.
inline const QString kSeeAboveMarker = QStringLiteral("               ------See Above------");

// The label of a slot row (1 to 48). The hour starts at 6 and 12 is skipped: "11:45" is followed
// by "1:00", so the afternoon reads one hour ahead of a clock. Users know the grid that way.
QString timeLabel(int row);

// Makes the grid 49 rows (and at least two columns) and writes the slot labels into column 0.
void FillTimeLabels(Grid& grid);

// Empties the slot text of rows 1 to 48.
void ClearDaySchedule(Grid& grid);

// Column 1 of the start row gets the customer's name, the rows below it up to slotCount - 1 the
// continuation marker. Rows past the last slot are left alone.
void fillSeeAbove(Grid& grid, int startRow, int slotCount, const QString& customerName);

} // namespace ostrel
