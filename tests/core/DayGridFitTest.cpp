#include "scheduling/DaySchedule.h"
#include "scheduling/SlotFit.h"
#include "scheduling/TimeGrid.h"

#include <gtest/gtest.h>

using namespace ostrel;

namespace {
Grid dayGrid() {
    Grid g;
    FillTimeLabels(g);
    g.SetTextMatrix(0, 1, "Scheduled Appointments");
    return g;
}
} // namespace

TEST(SlotFit, RefusalTextsAreKeptExactly) {
    EXPECT_EQ(kNoTimeRemainingText, "Not enough Time remaining this day for this assignment");
    EXPECT_EQ(kNotContiguousText, "Not enough contiguous Time Slots to Schedule Here");
}

TEST(SlotFit, FourSlotsFromRow44FitAndUseRowsUpTo47) {
    Grid g = dayGrid();
    g.SetTextMatrix(43, 1, "Earlier job");
    g.SetTextMatrix(48, 1, "Last row taken");
    const SlotFit fit = checkSlotFit(g, 44, 4, FreeRowScan::BlockOnly);
    EXPECT_TRUE(fit.fits());
    EXPECT_EQ(fit.refusal, "");
    // Any of rows 44 to 47 taken refuses the block.
    for (int row = 44; row <= 47; ++row) {
        Grid h = dayGrid();
        h.SetTextMatrix(row, 1, "Taken");
        EXPECT_EQ(checkSlotFit(h, 44, 4, FreeRowScan::BlockOnly).result, SlotFit::Result::NotContiguous)
            << "row " << row;
    }
}

TEST(SlotFit, FourSlotsFromRow45AreRefusedForLackOfTime) {
    const Grid g = dayGrid();
    const SlotFit fit = checkSlotFit(g, 45, 4, FreeRowScan::BlockOnly);
    EXPECT_FALSE(fit.fits());
    EXPECT_EQ(fit.result, SlotFit::Result::NoTimeRemaining);
    EXPECT_EQ(fit.refusal, "Not enough Time remaining this day for this assignment");
    EXPECT_EQ(checkSlotFit(g, 45, 4, FreeRowScan::BlockAndRowBelow).result, SlotFit::Result::NoTimeRemaining);
}

TEST(SlotFit, TheLastRowCanNeverStartAnything) {
    const Grid g = dayGrid();
    EXPECT_EQ(checkSlotFit(g, 48, 1, FreeRowScan::BlockOnly).refusal, kNoTimeRemainingText);
    EXPECT_TRUE(checkSlotFit(g, 47, 1, FreeRowScan::BlockOnly).fits());
}

TEST(SlotFit, TimeIsTestedBeforeTheRowsAreScanned) {
    Grid g = dayGrid();
    for (int row = 1; row <= 48; ++row)
        g.SetTextMatrix(row, 1, "Holiday");
    EXPECT_EQ(checkSlotFit(g, 46, 3, FreeRowScan::BlockOnly).result, SlotFit::Result::NoTimeRemaining);
    EXPECT_EQ(checkSlotFit(g, 10, 3, FreeRowScan::BlockOnly).result, SlotFit::Result::NotContiguous);
}

TEST(SlotFit, NewAppointmentOfFourSlotsAtRow40NeedsRows40To43Free) {
    Grid g = dayGrid();
    g.SetTextMatrix(44, 1, "Ms Patricia Thomas");
    EXPECT_TRUE(checkSlotFit(g, 40, 4, FreeRowScan::BlockOnly).fits());
    g.SetTextMatrix(43, 1, "Furnace Tune-Up");
    const SlotFit fit = checkSlotFit(g, 40, 4, FreeRowScan::BlockOnly);
    EXPECT_EQ(fit.result, SlotFit::Result::NotContiguous);
    EXPECT_EQ(fit.refusal, "Not enough contiguous Time Slots to Schedule Here");
}

TEST(SlotFit, MovedAppointmentOfFourSlotsAtRow40NeedsRows40To44Free) {
    Grid g = dayGrid();
    g.SetTextMatrix(45, 1, "Ms Patricia Thomas");
    EXPECT_TRUE(checkSlotFit(g, 40, 4, FreeRowScan::BlockAndRowBelow).fits());
    g.SetTextMatrix(44, 1, "Gas Leak Test");
    const SlotFit fit = checkSlotFit(g, 40, 4, FreeRowScan::BlockAndRowBelow);
    EXPECT_EQ(fit.result, SlotFit::Result::NotContiguous);
    EXPECT_EQ(fit.refusal, kNotContiguousText);
    // The same day still takes a new appointment there.
    EXPECT_TRUE(checkSlotFit(g, 40, 4, FreeRowScan::BlockOnly).fits());
}

TEST(SlotFit, OnlyTheEmptyStringIsFree) {
    Grid g = dayGrid();
    g.SetTextMatrix(12, 1, " ");
    EXPECT_EQ(checkSlotFit(g, 11, 2, FreeRowScan::BlockOnly).result, SlotFit::Result::NotContiguous);
}

TEST(SlotFit, TheHeadRowIsNeverAFreeSlot) {
    Grid g = dayGrid();
    g.SetTextMatrix(0, 1, "");
    EXPECT_EQ(checkSlotFit(g, 0, 2, FreeRowScan::BlockOnly).result, SlotFit::Result::NotContiguous);
}

TEST(SlotFit, AppliesTheSameRulesToADayScheduleValue) {
    DaySchedule day;
    day.setSlot(44, "Gas Leak Test");
    EXPECT_TRUE(checkSlotFit(day, 40, 4, FreeRowScan::BlockOnly).fits());
    EXPECT_EQ(checkSlotFit(day, 40, 4, FreeRowScan::BlockAndRowBelow).refusal, kNotContiguousText);
    EXPECT_TRUE(checkSlotFit(day, 45, 3, FreeRowScan::BlockOnly).fits());
    EXPECT_EQ(checkSlotFit(day, 45, 4, FreeRowScan::BlockOnly).refusal, kNoTimeRemainingText);
}
