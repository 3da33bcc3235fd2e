#include "controls/Controls.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

using namespace ostrel;

namespace {

// A grid of one heading row and three columns whose rows below come from a source that counts how
// often it is asked.
struct OnDemandGrid : ::testing::Test {
    Grid g;
    std::shared_ptr<int> asked = std::make_shared<int>(0);

    void SetUp() override {
        g.fixedRows = 1;
        g.fixedCols = 0;
        g.SetCols(3);
        g.SetRows(1);
        g.SetTextMatrix(0, 0, "Head");
        give(1, 1000);
    }
    void give(int first, int count) {
        g.SetRowSource(first, count, [n = asked](int r, int c) {
            ++*n;
            return QStringLiteral("r%1c%2").arg(r).arg(c);
        });
    }
};

} // namespace

TEST_F(OnDemandGrid, RowsReadFromTheSourceAndTheRowsBeforeItStay) {
    EXPECT_EQ(g.Rows(), 1001);
    EXPECT_TRUE(g.HasRowSource());
    EXPECT_EQ(*asked, 0); // nothing is made until it is read
    EXPECT_EQ(g.TextMatrix(0, 0), "Head");
    EXPECT_EQ(g.TextMatrix(1, 0), "r1c0");
    EXPECT_EQ(g.TextMatrix(1000, 2), "r1000c2");
    EXPECT_EQ(*asked, 2);
    EXPECT_EQ(g.CellBackColor(500, 1), kNoColour);
    EXPECT_EQ(g.CellForeColor(500, 1), kNoColour);
}

TEST_F(OnDemandGrid, ReadsOutsideTheGridFailAsForStoredRows) {
    EXPECT_THROW(g.TextMatrix(1001, 0), std::out_of_range);
    EXPECT_THROW(g.TextMatrix(5, 3), std::out_of_range);
    EXPECT_THROW(g.SetTextMatrix(1001, 0, "x"), std::out_of_range);
    EXPECT_EQ(g.CellBackColor(1001, 0), kNoColour);
}

TEST_F(OnDemandGrid, AWriteStoresTheRowWithTheSourcesTextsAndTheWriteApplies) {
    g.SetTextMatrix(7, 1, "changed");
    g.SetCellBackColor(7, 2, rgbColour(255, 0, 0));
    const int afterWrite = *asked;
    EXPECT_EQ(g.TextMatrix(7, 0), "r7c0");
    EXPECT_EQ(g.TextMatrix(7, 1), "changed");
    EXPECT_EQ(g.TextMatrix(7, 2), "r7c2");
    EXPECT_EQ(g.CellBackColor(7, 2), rgbColour(255, 0, 0));
    EXPECT_EQ(*asked, afterWrite); // a stored row no longer asks its source
    EXPECT_EQ(g.TextMatrix(8, 1), "r8c1");
}

TEST_F(OnDemandGrid, ClearBlanksEveryCellAndKeepsTheRows) {
    g.SetTextMatrix(3, 0, "written");
    g.Clear();
    EXPECT_EQ(g.Rows(), 1001);
    EXPECT_EQ(g.TextMatrix(0, 0), "");
    EXPECT_EQ(g.TextMatrix(3, 0), "");
    EXPECT_EQ(g.TextMatrix(900, 2), "");
    g.SetTextMatrix(900, 2, "new");
    EXPECT_EQ(g.TextMatrix(900, 1), "");
    EXPECT_EQ(g.TextMatrix(900, 2), "new");
}

TEST_F(OnDemandGrid, FewerRowsKeepTheRestOnDemandAndDropWrittenRowsBeyond) {
    g.SetTextMatrix(600, 0, "gone");
    g.SetTextMatrix(20, 0, "kept");
    g.row = 800;
    g.SetRows(501);
    EXPECT_TRUE(g.HasRowSource());
    EXPECT_EQ(g.Rows(), 501);
    EXPECT_EQ(g.row, 500);
    EXPECT_EQ(g.TextMatrix(20, 0), "kept");
    EXPECT_EQ(g.TextMatrix(500, 0), "r500c0");
    EXPECT_THROW(g.TextMatrix(501, 0), std::out_of_range);
    // Growing again brings blank rows, not the source's.
    g.SetRows(601);
    EXPECT_FALSE(g.HasRowSource());
    EXPECT_EQ(g.TextMatrix(20, 0), "kept");
    EXPECT_EQ(g.TextMatrix(500, 1), "r500c1");
    EXPECT_EQ(g.TextMatrix(600, 0), "");
}

TEST_F(OnDemandGrid, SetRowsToTheRowsBeforeTheSourceEndsIt) {
    g.SetRows(1);
    EXPECT_FALSE(g.HasRowSource());
    EXPECT_EQ(g.Rows(), 1);
    EXPECT_EQ(g.TextMatrix(0, 0), "Head");
    g.SetRows(3);
    EXPECT_EQ(g.TextMatrix(2, 1), "");
}

TEST_F(OnDemandGrid, MoreColumnsStoreEveryRowFirst) {
    g.SetRows(4);
    g.SetCols(4);
    EXPECT_FALSE(g.HasRowSource());
    EXPECT_EQ(g.TextMatrix(3, 2), "r3c2");
    EXPECT_EQ(g.TextMatrix(3, 3), "");
}

TEST_F(OnDemandGrid, ANewSourceReplacesTheOldOneAndItsWrittenRows) {
    g.SetTextMatrix(2, 0, "old");
    g.SetTextMatrix(0, 1, "Second head");
    g.SetRowSource(1, 2, [](int r, int c) { return QStringLiteral("n%1%2").arg(r).arg(c); });
    EXPECT_EQ(g.Rows(), 3);
    EXPECT_EQ(g.TextMatrix(0, 1), "Second head");
    EXPECT_EQ(g.TextMatrix(2, 0), "n20");
}

TEST_F(OnDemandGrid, ASourceAfterMoreStoredRowsKeepsThemAndAddsBlankOnes) {
    g.SetRows(1);
    g.SetRows(2);
    g.SetTextMatrix(1, 0, "stored");
    g.SetRowSource(3, 1, [](int, int) { return QStringLiteral("s"); });
    EXPECT_EQ(g.Rows(), 4);
    EXPECT_EQ(g.TextMatrix(1, 0), "stored");
    EXPECT_EQ(g.TextMatrix(2, 0), "");
    EXPECT_EQ(g.TextMatrix(3, 2), "s");
}

TEST_F(OnDemandGrid, AnEmptySourceLeavesOnlyTheRowsBeforeIt) {
    g.row = 5;
    give(1, 0);
    EXPECT_EQ(g.Rows(), 1);
    EXPECT_EQ(g.row, 0);
    EXPECT_THROW(g.TextMatrix(1, 0), std::out_of_range);
}
