#include "RecordingPageSurface.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::PageOp;
using ostrel::test::RecordingPageSurface;

TEST(PrintPageSurface, APrintStartsAtThePositionAndMovesToTheStartOfTheNextLine) {
    RecordingPageSurface p;
    p.CurrentX = 1000;
    p.CurrentY = 500;
    p.Print("abc");
    ASSERT_EQ(p.texts().size(), 1);
    EXPECT_EQ(p.texts()[0].x, 1000);
    EXPECT_EQ(p.texts()[0].y, 500);
    EXPECT_EQ(p.CurrentX, 0);
    EXPECT_EQ(p.CurrentY, 730);
}

TEST(PrintPageSurface, AContinuedPrintLeavesThePositionBehindTheTextOnTheSameLine) {
    RecordingPageSurface p;
    p.CurrentX = 1000;
    p.CurrentY = 500;
    p.PrintContinue("abc");
    EXPECT_EQ(p.CurrentX, 1300);
    EXPECT_EQ(p.CurrentY, 500);
    p.Print("de");
    EXPECT_EQ(p.texts()[1].x, 1300);
    EXPECT_EQ(p.texts()[1].y, 500);
    EXPECT_EQ(p.CurrentY, 730);
}

TEST(PrintPageSurface, AnEmptyPrintDrawsNothingAndMovesDownOneLine) {
    RecordingPageSurface p;
    p.FontSize = 12;
    p.CurrentX = 700;
    p.Print();
    EXPECT_TRUE(p.texts().isEmpty());
    EXPECT_EQ(p.CurrentY, 276);
    EXPECT_EQ(p.CurrentX, 0);
}

TEST(PrintPageSurface, TextCarriesTheCurrentFontAndColour) {
    RecordingPageSurface p;
    p.FontName = "Times New Roman";
    p.FontSize = 14;
    p.FontBold = true;
    p.FontUnderline = true;
    p.ForeColor = 255;
    p.Print("Head");
    const PageOp op = p.text("Head");
    EXPECT_EQ(op.font, (PrintFont{"Times New Roman", 14, true, true}));
    EXPECT_EQ(op.colour, 255u);
}

TEST(PrintPageSurface, TextWidthAndHeightFollowTheCurrentFontAndCountEveryLine) {
    RecordingPageSurface p;
    EXPECT_EQ(p.TextWidth("abcd"), 400);
    EXPECT_EQ(p.TextHeight("abcd"), 230);
    p.FontSize = 20;
    EXPECT_EQ(p.TextWidth("abcd"), 800);
    EXPECT_EQ(p.TextWidth("ab\r\nabcde\r\nc"), 1000);
    EXPECT_EQ(p.TextHeight("ab\r\nabcde\r\nc"), 3 * 460);
}

TEST(PrintPageSurface, LinesOfOneTextStartBelowEachOtherWhereTheTextStarted) {
    RecordingPageSurface p;
    p.CurrentX = 1440;
    p.CurrentY = 100;
    p.Print("one\r\ntwo");
    ASSERT_EQ(p.texts().size(), 2);
    EXPECT_EQ(p.texts()[1].x, 1440);
    EXPECT_EQ(p.texts()[1].y, 330);
    EXPECT_EQ(p.CurrentY, 560);
}

TEST(PrintPageSurface, ALineOrBoxIsDrawnInTheForeColorAtTheDrawWidthAndMovesThePositionToItsEnd) {
    RecordingPageSurface p;
    p.ForeColor = 16711680;
    p.DrawWidth = 6;
    p.Line(360, 504, 11880, 5040, true);
    p.Line(360, 5760, 11880, 5760);
    ASSERT_EQ(p.of(PageOp::Kind::Box).size(), 1);
    const PageOp box = p.of(PageOp::Kind::Box)[0];
    EXPECT_EQ(box.x, 360);
    EXPECT_EQ(box.y, 504);
    EXPECT_EQ(box.x2, 11880);
    EXPECT_EQ(box.y2, 5040);
    EXPECT_EQ(box.colour, 16711680u);
    EXPECT_DOUBLE_EQ(box.lineWidth, 6 * 2.4);
    ASSERT_EQ(p.of(PageOp::Kind::Line).size(), 1);
    EXPECT_EQ(p.CurrentX, 11880);
    EXPECT_EQ(p.CurrentY, 5760);
}

TEST(PrintPageSurface, APictureIsPaintedScaledIntoItsRectangle) {
    RecordingPageSurface p;
    p.PaintPicture("/pics/logo.bmp", 5400, 720, 1440, 1080);
    const auto pictures = p.of(PageOp::Kind::Picture);
    ASSERT_EQ(pictures.size(), 1);
    EXPECT_EQ(pictures[0].text, "/pics/logo.bmp");
    EXPECT_EQ(pictures[0].x, 5400);
    EXPECT_EQ(pictures[0].y, 720);
    EXPECT_EQ(pictures[0].x2, 1440);
    EXPECT_EQ(pictures[0].y2, 1080);
}

TEST(PrintPageSurface, ANewPageCountsUpAndPutsThePositionAtTheTop) {
    RecordingPageSurface p;
    EXPECT_EQ(p.Page(), 1);
    p.CurrentX = 500;
    p.CurrentY = 9000;
    p.Print("first");
    p.NewPage();
    EXPECT_EQ(p.Page(), 2);
    EXPECT_EQ(p.CurrentX, 0);
    EXPECT_EQ(p.CurrentY, 0);
    p.Print("second");
    EXPECT_EQ(p.text("second").page, 2);
    EXPECT_EQ(p.text("first").page, 1);
}

TEST(PrintPageSurface, EndDocSendsTheJobOnceAndTheNextJobStartsAtPageOne) {
    RecordingPageSurface p;
    p.EndDoc();
    EXPECT_TRUE(p.ops.isEmpty());
    p.Print("x");
    p.NewPage();
    EXPECT_TRUE(p.documentOpen());
    p.EndDoc();
    p.EndDoc();
    EXPECT_EQ(p.documentsEnded(), 1);
    EXPECT_EQ(p.of(PageOp::Kind::EndDoc)[0].page, 2);
    EXPECT_EQ(p.Page(), 1);
    EXPECT_FALSE(p.documentOpen());
}

TEST(PrintPageSurface, TheJobTakesItsColourModeOrientationAndPaperAtItsFirstDrawing) {
    RecordingPageSurface p;
    p.ColorMode = PageSurface::kMonochrome;
    p.Orientation = PageSurface::kLandscape;
    p.Print("x");
    const auto begins = p.of(PageOp::Kind::Begin);
    ASSERT_EQ(begins.size(), 1);
    EXPECT_EQ(begins[0].colorMode, 1);
    EXPECT_EQ(begins[0].orientation, 2);
    EXPECT_EQ(begins[0].paperSize, 1);
}

TEST(PrintPageSurface, ThePageIsLetterInTwipsTurnedForLandscape) {
    RecordingPageSurface p;
    EXPECT_EQ(p.ScaleWidth(), 12240);
    EXPECT_EQ(p.ScaleHeight(), 15840);
    p.Orientation = PageSurface::kLandscape;
    EXPECT_EQ(p.ScaleWidth(), 15840);
    EXPECT_EQ(p.ScaleHeight(), 12240);
}

TEST(PrintPageSurface, SettingTheSheetsOwnWidthChangesNothingWhileAnotherWidthScalesAcross) {
    RecordingPageSurface p;
    p.SetScaleWidth(12240);
    EXPECT_EQ(p.ScaleMode(), 0);
    p.CurrentX = 6000;
    p.Print("ab");
    EXPECT_EQ(p.text("ab").x, 6000);
    EXPECT_EQ(p.TextWidth("ab"), 200);

    p.SetScaleWidth(6120);
    p.CurrentX = 3000;
    p.Print("cd");
    EXPECT_EQ(p.text("cd").x, 6000);
    EXPECT_EQ(p.TextWidth("cd"), 100);
    EXPECT_EQ(p.ScaleWidth(), 6120);

    p.SetScaleMode(PageSurface::kTwips);
    EXPECT_EQ(p.ScaleWidth(), 12240);
    EXPECT_EQ(p.TextWidth("cd"), 200);
}

TEST(PrintPageSurface, APrinterFailureStopsTheDrawingWithAPrintError) {
    RecordingPageSurface p;
    p.failAtOperation = 2;
    p.Print("one");
    try {
        p.Print("two");
        FAIL() << "the second drawing should have failed";
    } catch (const PrintError& e) {
        EXPECT_EQ(e.number(), PrintError::kPrinterError);
        EXPECT_FALSE(e.cancelled());
    }
    EXPECT_FALSE(p.printed("two"));
}
