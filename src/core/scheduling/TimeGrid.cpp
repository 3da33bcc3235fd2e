#include "TimeGrid.h"

#include <algorithm>

namespace ostrel {

namespace {
const char* const kQuarters[] = {":00", ":15", ":30", ":45"};

void ensureDayGridShape(Grid& grid) {
    if (grid.Rows() < kDayGridRows) grid.SetRows(kDayGridRows);
    if (grid.Cols() < kSlotTextColumn + 1) grid.SetCols(kSlotTextColumn + 1);
}
} // namespace

QString timeLabel(int row) {
    const int index = row - kFirstTimeSlot;
    int hour = 6 + index / 4;
    // The hour that would read 12 becomes 1, and every later hour follows on from there.
    if (hour >= 12) hour -= 11;
    return QString::number(hour) + QLatin1String(kQuarters[index % 4]);
}

void FillTimeLabels(Grid& grid) {
    grid.SetRows(kDayGridRows);
    if (grid.Cols() < kSlotTextColumn + 1) grid.SetCols(kSlotTextColumn + 1);
    for (int r = kFirstTimeSlot; r <= kLastTimeSlot; ++r)
        grid.SetTextMatrix(r, kTimeLabelColumn, timeLabel(r));
}

void ClearDaySchedule(Grid& grid) {
    ensureDayGridShape(grid);
    for (int r = kFirstTimeSlot; r <= kLastTimeSlot; ++r)
        grid.SetTextMatrix(r, kSlotTextColumn, QString());
}

void fillSeeAbove(Grid& grid, int startRow, int slotCount, const QString& customerName) {
    ensureDayGridShape(grid);
    if (startRow < kFirstTimeSlot || startRow > kLastTimeSlot) return;
    grid.SetTextMatrix(startRow, kSlotTextColumn, customerName);
    const int last = std::min(startRow + slotCount - 1, kLastTimeSlot);
    for (int r = startRow + 1; r <= last; ++r)
        grid.SetTextMatrix(r, kSlotTextColumn, kSeeAboveMarker);
}

} // namespace ostrel
