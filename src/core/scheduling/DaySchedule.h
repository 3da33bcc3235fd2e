#pragma once

#include "TimeGrid.h"
#include "controls/Controls.h"
#include "store/TextStatements.h"

#include <QString>

#include <array>

namespace ostrel {

// One day of one Point of Service: the text of slots 1 to 48. A slot is free when its text is
// empty; nothing else marks what a slot belongs to.
class DaySchedule {
public:
    // Rows outside 1..48 read as empty and cannot be set.
    QString slot(int row) const;
    // The text of a slot, moved out: the slot is left empty. For a day that is shown and dropped.
    QString takeSlot(int row);
    void setSlot(int row, const QString& text);
    bool isFree(int row) const { return isSlotRow(row) && m_slots[row - kFirstTimeSlot].isEmpty(); }
    bool isEmpty() const;

    // Column 1 of rows 1 to 48 of a day grid.
    static DaySchedule fromGrid(const Grid& grid);
    void toGrid(Grid& grid) const;

    // The file form: 48 quoted-write lines of one string each.
    TextWriter toStatements() const;
    // 48 field reads; throws StoreError when the file holds fewer.
    static DaySchedule fromStatements(TextReader& reader);

    static bool isSlotRow(int row) { return row >= kFirstTimeSlot && row <= kLastTimeSlot; }

    friend bool operator==(const DaySchedule&, const DaySchedule&) = default;

private:
    std::array<QString, kTimeSlotCount> m_slots;
};

} // namespace ostrel
