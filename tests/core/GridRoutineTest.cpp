#include "controls/Controls.h"
#include "shell/GridRoutines.h"

#include <gtest/gtest.h>

using namespace ostrel;

namespace {

// A heading row and rows "a", "b", "c" of two columns, then one empty row.
Grid threeRows() {
    Grid g;
    g.SetRows(5);
    g.SetCols(3);
    g.SetTextMatrix(0, 0, "Item");
    g.SetTextMatrix(0, 1, "Qty");
    const char* names[] = {"a", "b", "c"};
    for (int r = 1; r <= 3; ++r) {
        g.SetTextMatrix(r, 0, names[r - 1]);
        g.SetTextMatrix(r, 1, QString::number(r));
        g.SetTextMatrix(r, 2, QStringLiteral("x%1").arg(r));
    }
    return g;
}

QStringList column(const Grid& g, int c) {
    QStringList out;
    for (int r = 0; r < g.Rows(); ++r)
        out << g.TextMatrix(r, c);
    return out;
}

} // namespace

TEST(MoveGridRow, UpSwapsTheRowWithTheOneAboveAndTheSelectionStays) {
    Grid g = threeRows();
    g.row = 3;
    MoveGridRow(g, kMoveRowUp, 2);
    EXPECT_EQ(column(g, 0), (QStringList{"Item", "a", "c", "b", ""}));
    EXPECT_EQ(column(g, 1), (QStringList{"Qty", "1", "3", "2", ""}));
    EXPECT_EQ(g.row, 3);
}

TEST(MoveGridRow, OnlyTheGivenNumberOfColumnsMove) {
    Grid g = threeRows();
    g.row = 1;
    MoveGridRow(g, kMoveRowDown, 2);
    EXPECT_EQ(column(g, 0), (QStringList{"Item", "b", "a", "c", ""}));
    EXPECT_EQ(column(g, 2), (QStringList{"", "x1", "x2", "x3", ""}));
    EXPECT_EQ(g.row, 1);
}

TEST(MoveGridRow, UpFromTheFirstRowChangesNothing) {
    Grid g = threeRows();
    const Grid before = g;
    g.row = 1;
    MoveGridRow(g, kMoveRowUp, 3);
    for (int c = 0; c < 3; ++c)
        EXPECT_EQ(column(g, c), column(before, c));
}

TEST(MoveGridRow, DownOntoAnEmptyRowChangesNothing) {
    Grid g = threeRows();
    const Grid before = g;
    g.row = 3;
    MoveGridRow(g, kMoveRowDown, 3);
    for (int c = 0; c < 3; ++c)
        EXPECT_EQ(column(g, c), column(before, c));
}

TEST(MoveGridRow, AnEmptyCurrentRowOrAnUnknownDirectionChangesNothing) {
    Grid g = threeRows();
    const Grid before = g;
    g.row = 4;
    MoveGridRow(g, kMoveRowUp, 3);
    g.row = 2;
    MoveGridRow(g, 1, 3);
    MoveGridRow(g, -2, 3);
    for (int c = 0; c < 3; ++c)
        EXPECT_EQ(column(g, c), column(before, c));
}

TEST(GridWheel, WheelUpFromTopRowFiveWithThirtyVisibleRowsEndsAtRowOne) {
    // 30 rows of 20 pixels fit the grid's 600.
    EXPECT_EQ(WheelTopRow(5, 200, 600, 20, 120), 1);
}

TEST(GridWheel, ANotchDownMovesAWholePage) {
    EXPECT_EQ(WheelTopRow(5, 200, 600, 20, -120), 35);
    EXPECT_EQ(WheelTopRow(100, 200, 600, 20, 120), 70);
}

TEST(GridWheel, APageIsNeverLessThanTenRows) {
    EXPECT_EQ(WheelTopRow(1, 200, 100, 20, -120), 11);
    EXPECT_EQ(WheelTopRow(50, 200, 100, 20, 240), 40);
}

TEST(GridWheel, DownStopsAtTheLastRow) {
    EXPECT_EQ(WheelTopRow(15, 20, 600, 20, -120), 19);
}

TEST(GridWheel, NoRotationCountsAsDown) {
    EXPECT_EQ(WheelTopRow(1, 200, 600, 20, 0), 31);
}

TEST(GridWheel, AGridWithNothingToMeasureOrShowIsLeftAlone) {
    EXPECT_EQ(WheelTopRow(3, 200, 600, 0, -120), 3);
    EXPECT_EQ(WheelTopRow(1, 1, 600, 20, -120), 1);
    EXPECT_EQ(WheelTopRow(1, 0, 600, 20, 120), 1);
}

TEST(GridWheel, TheModelFormSetsTheTopRow) {
    Grid g;
    g.SetRows(100);
    g.SetCols(2);
    g.topRow = 50;
    ScrollGridByWheel(g, 300, 25, 120);
    EXPECT_EQ(g.topRow, 38);
    ScrollGridByWheel(g, 300, 25, -120);
    EXPECT_EQ(g.topRow, 50);
}
