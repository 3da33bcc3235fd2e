#pragma once

#include "DaySchedule.h"
#include "controls/Controls.h"

#include <QString>

namespace ostrel {

inline const QString kNoTimeRemainingText =
    QStringLiteral("Not enough Time remaining this day for this assignment");
inline const QString kNotContiguousText = QStringLiteral("Not enough contiguous Time Slots to Schedule Here");

// How far the free-row scan reaches. A new appointment needs only its own rows; a moved one
// also needs the row below its block to be free.
enum class FreeRowScan {
    BlockOnly,        // rows r to r + s - 1
    BlockAndRowBelow, // rows r to r + s
};

struct SlotFit {
    enum class Result { Fits, NoTimeRemaining, NotContiguous };
    Result result = Result::Fits;
    QString refusal; // the message for the user; empty when the block fits

    bool fits() const { return result == Result::Fits; }
};

// Tries a block of slotCount slots at the row the user chose. The day has room only when
// startRow + slotCount < 49, so the last slot can never be used; then every scanned row must be
// empty. A row outside the slots counts as taken. No other row is tried.
SlotFit checkSlotFit(const Grid& grid, int startRow, int slotCount, FreeRowScan scan);
SlotFit checkSlotFit(const DaySchedule& day, int startRow, int slotCount, FreeRowScan scan);

} // namespace ostrel
