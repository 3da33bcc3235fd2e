#include "scheduling/SlotArithmetic.h"
#include "scheduling/TimeGrid.h"

#include <gtest/gtest.h>

using namespace ostrel;

namespace {
Grid labelledGrid() {
    Grid g;
    FillTimeLabels(g);
    return g;
}
} // namespace

TEST(DayGridLabels, ElevenFortyFiveIsFollowedByOneOClock) {
    const Grid g = labelledGrid();
    EXPECT_EQ(g.TextMatrix(24, 0), "11:45");
    EXPECT_EQ(g.TextMatrix(25, 0), "1:00");
}

TEST(DayGridLabels, GridHasFortyNineRowsAndTheWholeLabelTable) {
    const Grid g = labelledGrid();
    ASSERT_EQ(g.Rows(), 49);
    EXPECT_GE(g.Cols(), 2);
    const QStringList hours = {"6", "7", "8", "9", "10", "11", "1", "2", "3", "4", "5", "6"};
    const QStringList quarters = {":00", ":15", ":30", ":45"};
    for (int row = 1; row <= 48; ++row)
        EXPECT_EQ(g.TextMatrix(row, 0), hours[(row - 1) / 4] + quarters[(row - 1) % 4]) << "row " << row;
    EXPECT_EQ(g.TextMatrix(1, 0), "6:00");
    EXPECT_EQ(g.TextMatrix(48, 0), "6:45");
}

TEST(DayGridLabels, NoRowIsLabelledTwelveAndSixOClockOccursTwice) {
    const Grid g = labelledGrid();
    int sixes = 0;
    for (int row = 1; row <= 48; ++row) {
        EXPECT_FALSE(g.TextMatrix(row, 0).startsWith("12:")) << "row " << row;
        if (g.TextMatrix(row, 0) == "6:00") ++sixes;
    }
    EXPECT_EQ(sixes, 2);
}

TEST(DayGridLabels, FillingLabelsLeavesTheHeadRowAndAWiderGridAlone) {
    Grid g;
    g.SetRows(2);
    g.SetCols(3);
    g.SetTextMatrix(0, 0, "Time");
    FillTimeLabels(g);
    EXPECT_EQ(g.Rows(), 49);
    EXPECT_EQ(g.Cols(), 3);
    EXPECT_EQ(g.TextMatrix(0, 0), "Time");
}

TEST(DayGridLabels, ClearDayScheduleEmptiesTheSlotTextButNotTheLabelsOrHead) {
    Grid g = labelledGrid();
    g.SetTextMatrix(0, 1, "Scheduled Appointments");
    for (int row = 1; row <= 48; ++row)
        g.SetTextMatrix(row, 1, "Busy");
    ClearDaySchedule(g);
    for (int row = 1; row <= 48; ++row) {
        EXPECT_EQ(g.TextMatrix(row, 1), "") << "row " << row;
        EXPECT_FALSE(g.TextMatrix(row, 0).isEmpty());
    }
    EXPECT_EQ(g.TextMatrix(0, 1), "Scheduled Appointments");
}

TEST(DurationList, HoldsThirtyTwoEntriesFromNoneToSevenFortyFiveWithTheirPositionAsValue) {
    ListControl lst;
    lst.AddItem("left over");
    lst.SetListIndex(0);
    FillDurationList(lst);
    ASSERT_EQ(lst.ListCount(), 32);
    EXPECT_EQ(lst.listIndex, -1);
    EXPECT_EQ(lst.List(0), "0:00");
    EXPECT_EQ(lst.List(1), "0:15");
    EXPECT_EQ(lst.List(3), "0:45");
    EXPECT_EQ(lst.List(4), "1:00");
    EXPECT_EQ(lst.List(31), "7:45");
    for (int k = 0; k < 32; ++k)
        EXPECT_EQ(lst.ItemData(k), k);
}

TEST(ParseTimeLabel, NoTimeIsNoSlotsAndOneHourIsFour) {
    EXPECT_EQ(ParseTimeLabel("0:00"), 0);
    EXPECT_EQ(ParseTimeLabel("1:00"), 4);
}

TEST(ParseTimeLabel, QuartersAddOneTwoOrThreeSlots) {
    EXPECT_EQ(ParseTimeLabel("0:15"), 1);
    EXPECT_EQ(ParseTimeLabel("0:30"), 2);
    EXPECT_EQ(ParseTimeLabel("0:45"), 3);
    EXPECT_EQ(ParseTimeLabel("1:30"), 6);
    EXPECT_EQ(ParseTimeLabel("8:00"), 32);
    EXPECT_EQ(ParseTimeLabel("7:45"), 31);
}

TEST(ParseTimeLabel, ReadsOnlyTheFirstHourDigit) {
    EXPECT_EQ(ParseTimeLabel("10:15"), 5);
    EXPECT_EQ(ParseTimeLabel("12:00"), 4);
}

TEST(ParseTimeLabel, TextWithoutADigitOrQuarterGivesNoSlots) {
    EXPECT_EQ(ParseTimeLabel(""), 0);
    EXPECT_EQ(ParseTimeLabel("x:20"), 0);
    EXPECT_EQ(ParseTimeLabel("2:20"), 8);
}

TEST(SlotCount, SumsTheSelectedServicesDurations) {
    EXPECT_EQ(appointmentSlotCount({"1:00", "0:30", "0:15"}), 7);
    EXPECT_EQ(appointmentSlotCount({}), 0);
}

TEST(SlotCount, AnAdditionalServiceAddsItsListPositionPlusOne) {
    EXPECT_EQ(appointmentSlotCount({"1:00"}, 1), 4 + 2); // "0:15" takes two slots
    EXPECT_EQ(appointmentSlotCount({"1:00"}, 0), 4 + 1); // "0:00" still takes one
    EXPECT_EQ(appointmentSlotCount({}, 31), 32);
}

TEST(SeeAbove, MarkerKeepsItsFifteenLeadingBlanks) {
    EXPECT_EQ(kSeeAboveMarker, QString(15, u' ') + "------See Above------");
}

TEST(SeeAbove, FillsTheStartRowWithTheNameAndTheRowsBelowWithTheMarker) {
    Grid g = labelledGrid();
    g.SetTextMatrix(9, 1, "Next job");
    fillSeeAbove(g, 5, 4, "Mr. John Gonzalez");
    EXPECT_EQ(g.TextMatrix(4, 1), "");
    EXPECT_EQ(g.TextMatrix(5, 1), "Mr. John Gonzalez");
    for (int row = 6; row <= 8; ++row)
        EXPECT_EQ(g.TextMatrix(row, 1), kSeeAboveMarker) << "row " << row;
    EXPECT_EQ(g.TextMatrix(9, 1), "Next job");
}

TEST(SeeAbove, OneSlotGetsOnlyTheNameAndNothingPassesTheLastRow) {
    Grid g = labelledGrid();
    fillSeeAbove(g, 10, 1, "Linda Miller");
    EXPECT_EQ(g.TextMatrix(10, 1), "Linda Miller");
    EXPECT_EQ(g.TextMatrix(11, 1), "");
    fillSeeAbove(g, 47, 5, "Late");
    EXPECT_EQ(g.TextMatrix(47, 1), "Late");
    EXPECT_EQ(g.TextMatrix(48, 1), kSeeAboveMarker);
    EXPECT_EQ(g.Rows(), 49);
}
