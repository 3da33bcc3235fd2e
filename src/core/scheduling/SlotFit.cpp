#include "SlotFit.h"

#include "TimeGrid.h"

namespace ostrel {

namespace {

template <typename IsFree> SlotFit fit(int startRow, int slotCount, FreeRowScan scan, IsFree isFree) {
    if (startRow + slotCount >= kDayGridRows) return {SlotFit::Result::NoTimeRemaining, kNoTimeRemainingText};
    const int lastScanned = startRow + slotCount - (scan == FreeRowScan::BlockOnly ? 1 : 0);
    for (int r = startRow; r <= lastScanned; ++r)
        if (!isFree(r)) return {SlotFit::Result::NotContiguous, kNotContiguousText};
    return {};
}

} // namespace

SlotFit checkSlotFit(const Grid& grid, int startRow, int slotCount, FreeRowScan scan) {
    return fit(startRow, slotCount, scan, [&grid](int r) {
        return DaySchedule::isSlotRow(r) && r < grid.Rows() && kSlotTextColumn < grid.Cols() &&
               grid.TextMatrix(r, kSlotTextColumn).isEmpty();
    });
}

SlotFit checkSlotFit(const DaySchedule& day, int startRow, int slotCount, FreeRowScan scan) {
    return fit(startRow, slotCount, scan, [&day](int r) { return day.isFree(r); });
}

} // namespace ostrel
