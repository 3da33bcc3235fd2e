#include "DaySchedule.h"

#include "store/StoreError.h"

#include <algorithm>
#include <utility>

namespace ostrel {

QString DaySchedule::slot(int row) const {
    return isSlotRow(row) ? m_slots[row - kFirstTimeSlot] : QString();
}

QString DaySchedule::takeSlot(int row) {
    return isSlotRow(row) ? std::exchange(m_slots[row - kFirstTimeSlot], QString()) : QString();
}

void DaySchedule::setSlot(int row, const QString& text) {
    if (!isSlotRow(row))
        throw StoreError(QString(), QStringLiteral("Time slot %1 is outside the day (1 to 48).").arg(row));
    m_slots[row - kFirstTimeSlot] = text;
}

bool DaySchedule::isEmpty() const {
    return std::all_of(m_slots.begin(), m_slots.end(), [](const QString& s) { return s.isEmpty(); });
}

DaySchedule DaySchedule::fromGrid(const Grid& grid) {
    DaySchedule day;
    const int lastRow = std::min(kLastTimeSlot, grid.Rows() - 1);
    if (grid.Cols() <= kSlotTextColumn) return day;
    for (int r = kFirstTimeSlot; r <= lastRow; ++r)
        day.m_slots[r - kFirstTimeSlot] = grid.TextMatrix(r, kSlotTextColumn);
    return day;
}

void DaySchedule::toGrid(Grid& grid) const {
    if (grid.Rows() < kDayGridRows) grid.SetRows(kDayGridRows);
    if (grid.Cols() <= kSlotTextColumn) grid.SetCols(kSlotTextColumn + 1);
    for (int r = kFirstTimeSlot; r <= kLastTimeSlot; ++r)
        grid.SetTextMatrix(r, kSlotTextColumn, m_slots[r - kFirstTimeSlot]);
}

TextWriter DaySchedule::toStatements() const {
    TextWriter out;
    for (const QString& s : m_slots)
        out.writeString(s);
    return out;
}

DaySchedule DaySchedule::fromStatements(TextReader& reader) {
    DaySchedule day;
    for (QString& s : day.m_slots)
        s = reader.readString();
    return day;
}

} // namespace ostrel
