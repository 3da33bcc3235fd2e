#include "setup/PrintColors.h"
#include "TestDataRoot.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

TEST(PrintColorsFile, MissingFileGivesDefaultsAndLeavesPrintUnticked) {
    TestDataRoot t;
    PrintColors c;
    EXPECT_FALSE(LoadPrintColors(t.disk(), c));
    EXPECT_EQ(c.txtBorders, 0);
    EXPECT_EQ(c.txtData, 0);
    EXPECT_EQ(c.lblFont, "Arial");
    EXPECT_TRUE(c.storedColor);
    EXPECT_EQ(c.storedCopies, 3);
    EXPECT_EQ(c.ckColor, 0);
    EXPECT_FALSE(c.printInColour());
    EXPECT_FALSE(t.isFile("/PrintColors.txt"));
}

TEST(PrintColorsFile, FirstSaveWritesTrueAndThreeWhateverTheControlsShow) {
    TestDataRoot t;
    PrintColors c;
    LoadPrintColors(t.disk(), c);
    c.ckColor = 0;
    c.cboCopies = "5";
    SavePrintColors(t.disk(), c);
    EXPECT_EQ(t.readBytes("/PrintColors.txt"), QByteArray("0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n"));
}

TEST(PrintColorsFile, SecondRunShowsTheStoredValuesInTheControls) {
    TestDataRoot t;
    t.writeBytes("/PrintColors.txt", "255\r\n16711680\r\n\"Times New Roman\"\r\n#FALSE#\r\n2\r\n");
    PrintColors c;
    ASSERT_TRUE(LoadPrintColors(t.disk(), c));
    EXPECT_EQ(c.txtBorders, 255);
    EXPECT_EQ(c.txtData, 16711680);
    EXPECT_EQ(c.lblFont, "Times New Roman");
    EXPECT_FALSE(c.storedColor);
    EXPECT_EQ(c.storedCopies, 2);
    EXPECT_EQ(c.ckColor, 0);
    EXPECT_EQ(c.cboCopies, "2");

    t.writeBytes("/PrintColors.txt", "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    ASSERT_TRUE(LoadPrintColors(t.disk(), c));
    EXPECT_EQ(c.ckColor, 1);
    EXPECT_TRUE(c.printInColour());
    EXPECT_EQ(c.cboCopies, "3");
}

TEST(PrintColorsFile, TickingPrintOrTypingCopiesNeverChangesTheFile) {
    TestDataRoot t;
    t.writeBytes("/PrintColors.txt", "0\r\n0\r\n\"Arial\"\r\n#FALSE#\r\n1\r\n");
    PrintColors c;
    LoadPrintColors(t.disk(), c);
    c.ckColor = 1;
    c.cboCopies = "4";
    c.txtBorders = 0x0000FF;
    c.txtData = 0x808080;
    c.lblFont = "Liberation Sans";
    SavePrintColors(t.disk(), c);
    EXPECT_EQ(t.readBytes("/PrintColors.txt"),
              QByteArray("255\r\n8421504\r\n\"Liberation Sans\"\r\n#FALSE#\r\n1\r\n"));
    EXPECT_TRUE(c.printInColour()); // this run prints in colour all the same
}

TEST(PrintColorsFile, ASystemColourNumberReadsAndWritesBackUnchanged) {
    TestDataRoot t;
    t.writeBytes("/PrintColors.txt", "-2147483643\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n");
    PrintColors c;
    LoadPrintColors(t.disk(), c);
    EXPECT_EQ(c.txtBorders, -2147483643);
    SavePrintColors(t.disk(), c);
    EXPECT_EQ(t.readBytes("/PrintColors.txt"),
              QByteArray("-2147483643\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n3\r\n"));
}

TEST(PrintColorsFile, CopiesOutOfByteRangeStopTheLoad) {
    TestDataRoot t;
    t.writeBytes("/PrintColors.txt", "0\r\n0\r\n\"Arial\"\r\n#TRUE#\r\n-1\r\n");
    PrintColors c;
    c.lblFont = "Held";
    EXPECT_THROW(LoadPrintColors(t.disk(), c), StoreError);
    EXPECT_EQ(c.lblFont, "Held");
}

TEST(PrintColorsFile, FileCutShortStopsTheLoad) {
    TestDataRoot t;
    t.writeBytes("/PrintColors.txt", "0\r\n0\r\n\"Arial\"\r\n");
    PrintColors c;
    EXPECT_THROW(LoadPrintColors(t.disk(), c), StoreError);
    EXPECT_EQ(t.readBytes("/PrintColors.txt"), QByteArray("0\r\n0\r\n\"Arial\"\r\n"));
}
