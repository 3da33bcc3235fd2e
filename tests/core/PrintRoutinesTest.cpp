#include "FakePlatform.h"
#include "RecordingPageSurface.h"
#include "TestDataRoot.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::PageOp;
using ostrel::test::RecordingPageSurface;
using ostrel::test::RecordingPrintDialogs;
using ostrel::test::TestDataRoot;

namespace {

struct PrintRoutines : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    RecordingPrintDialogs printDialogs;
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};

    RecordingPageSurface& startJob() {
        printer.ShowPrinterDialog();
        return printDialogs.lastJob();
    }
    // The lines PrintWrapped put out, in order.
    QStringList wrapped(const QString& text, double width, double x = 1440, double y = 2880) {
        RecordingPageSurface& p = startJob();
        printer.PrintWrapped(x, y, width, 720, text);
        return p.printedTexts();
    }
};

} // namespace

TEST_F(PrintRoutines, ThereIsNoPrinterBeforeTheFirstDialog) {
    EXPECT_FALSE(printer.hasPrinter());
    EXPECT_THROW(printer.Printer(), PrintError);
    EXPECT_THROW(printer.SetPosition(1, 1), PrintError);
}

TEST_F(PrintRoutines, TheDialogsCancelArrivesAsItsOwnErrorNumber) {
    printDialogs.answer(RecordingPrintDialogs::Answer::Cancel);
    try {
        printer.ShowPrinterDialog();
        FAIL() << "Cancel should stop the print";
    } catch (const PrintError& e) {
        EXPECT_EQ(e.number(), 32755);
        EXPECT_TRUE(e.cancelled());
    }
    EXPECT_FALSE(printer.hasPrinter());
}

TEST_F(PrintRoutines, InitPrinterSetsUpAColourLetterPortraitJobInTheSettingsFont) {
    settings.colors.lblFont = "Times New Roman";
    RecordingPageSurface& p = startJob();
    p.FontSize = 12;
    p.FontBold = true;
    p.FontUnderline = true;
    p.ForeColor = 255;
    p.SetScaleWidth(6000);
    printer.InitPrinter("Portrait", 1);
    EXPECT_EQ(p.ColorMode, 2);
    EXPECT_EQ(p.PaperSize, 1);
    EXPECT_EQ(p.Orientation, 1);
    EXPECT_EQ(p.ScaleMode(), 1);
    EXPECT_EQ(p.ScaleWidth(), 12240);
    EXPECT_EQ(p.FontName, "Times New Roman");
    EXPECT_EQ(p.ForeColor, 0u);
    EXPECT_EQ(p.FontSize, 12); // the size is left as it is
    EXPECT_FALSE(p.FontBold);
    EXPECT_FALSE(p.FontUnderline);
}

TEST_F(PrintRoutines, InitPrinterGivesMonochromeForAZeroFlagAndAnyOtherNumberGivesColour) {
    RecordingPageSurface& p = startJob();
    printer.InitPrinter("Portrait", 0);
    EXPECT_EQ(p.ColorMode, 1);
    printer.InitPrinter("Portrait", -1);
    EXPECT_EQ(p.ColorMode, 2);
}

TEST_F(PrintRoutines, InitPrinterTurnsToLandscapeForAnyTextButExactlyPortrait) {
    RecordingPageSurface& p = startJob();
    printer.InitPrinter("Landscape", 1);
    EXPECT_EQ(p.Orientation, 2);
    printer.InitPrinter("portrait", 1);
    EXPECT_EQ(p.Orientation, 2);
    printer.InitPrinter("", 1);
    EXPECT_EQ(p.Orientation, 2);
    printer.InitPrinter("Portrait", 1);
    EXPECT_EQ(p.Orientation, 1);
    EXPECT_EQ(p.ScaleWidth(), 12240);
}

TEST_F(PrintRoutines, SetPositionAtZeroZeroMovesNothing) {
    RecordingPageSurface& p = startJob();
    p.CurrentX = 1234;
    p.CurrentY = 5678;
    printer.SetPosition(0, 0);
    EXPECT_EQ(p.CurrentX, 1234);
    EXPECT_EQ(p.CurrentY, 5678);
}

TEST_F(PrintRoutines, SetPositionTakesInchesAndKeepsAnAxisGivenZeroOrLess) {
    RecordingPageSurface& p = startJob();
    p.CurrentX = 1234;
    p.CurrentY = 5678;
    printer.SetPosition(1.5, 0);
    EXPECT_EQ(p.CurrentX, 2160);
    EXPECT_EQ(p.CurrentY, 5678);
    printer.SetPosition(-2, 0.4);
    EXPECT_EQ(p.CurrentX, 2160);
    EXPECT_DOUBLE_EQ(p.CurrentY, 576);
    printer.SetPosition(7.0, 0.5);
    EXPECT_EQ(p.CurrentX, 10080);
    EXPECT_EQ(p.CurrentY, 720);
}

TEST_F(PrintRoutines, SetFontKeepsTheSizeForZeroButAlwaysSetsBoldAndUnderline) {
    RecordingPageSurface& p = startJob();
    printer.SetFont(14, true, true);
    EXPECT_EQ(p.FontSize, 14);
    EXPECT_TRUE(p.FontBold);
    EXPECT_TRUE(p.FontUnderline);
    printer.SetFont(0, false, false);
    EXPECT_EQ(p.FontSize, 14);
    EXPECT_FALSE(p.FontBold);
    EXPECT_FALSE(p.FontUnderline);
    printer.SetFont(-3, true, false);
    EXPECT_EQ(p.FontSize, 14);
    EXPECT_TRUE(p.FontBold);
}

TEST_F(PrintRoutines, TheHighlightColourIsBlueTextWithTheDataColourForLinesWhenPrintingInColour) {
    settings.colors.ckColor = 1;
    settings.colors.txtData = 0x00FF00;
    settings.colors.txtBorders = 0x0000C0;
    RecordingPageSurface& p = startJob();
    printer.SetPrintColor(true);
    EXPECT_EQ(p.ForeColor, 16711680u);
    EXPECT_EQ(printer.PaletteColor, 0x00FF00);
}

TEST_F(PrintRoutines, TheFrameColourIsTheBorderColourForTextAndLinesWhenPrintingInColour) {
    settings.colors.ckColor = 1;
    settings.colors.txtData = 0x00FF00;
    settings.colors.txtBorders = 0x0000C0;
    RecordingPageSurface& p = startJob();
    printer.SetPrintColor(false);
    EXPECT_EQ(p.ForeColor, 0x0000C0u);
    EXPECT_EQ(printer.PaletteColor, 0x0000C0);
}

TEST_F(PrintRoutines, BothPrintColoursAreBlackWhenColourIsNotTicked) {
    settings.colors.ckColor = 0;
    settings.colors.storedColor = true; // the stored field does not count, the box does
    settings.colors.txtData = 0x00FF00;
    settings.colors.txtBorders = 0x0000C0;
    RecordingPageSurface& p = startJob();
    p.ForeColor = 77;
    printer.PaletteColor = 77;
    printer.SetPrintColor(true);
    EXPECT_EQ(p.ForeColor, 0u);
    EXPECT_EQ(printer.PaletteColor, 0);
    p.ForeColor = 77;
    printer.SetPrintColor(false);
    EXPECT_EQ(p.ForeColor, 0u);
    EXPECT_EQ(printer.PaletteColor, 0);
}

TEST_F(PrintRoutines, PrintWrappedBreaksBehindTheLastBlankThatFitsTwentyTwipsInsideTheWidth) {
    // 10 points: 100 twips a character. 1020 leaves 1000, so "aaaa bbbb " (1000) just fits.
    EXPECT_EQ(wrapped("aaaa bbbb cccc dddd", 1020), (QStringList{"aaaa bbbb ", "cccc dddd"}));
    // One twip less and the second word goes to the next line.
    EXPECT_EQ(wrapped("aaaa bbbb cccc dddd", 1019), (QStringList{"aaaa ", "bbbb ", "cccc dddd"}));
}

TEST_F(PrintRoutines, PrintWrappedStartsEachLineAtXFromYDownward) {
    RecordingPageSurface& p = startJob();
    p.CurrentX = 99;
    p.CurrentY = 9999;
    printer.PrintWrapped(1872, 12384, 1020, 720, "aaaa bbbb cccc dddd");
    const auto texts = p.texts();
    ASSERT_EQ(texts.size(), 2);
    EXPECT_EQ(texts[0].x, 1872);
    EXPECT_EQ(texts[0].y, 12384);
    EXPECT_EQ(texts[1].x, 1872);
    EXPECT_EQ(texts[1].y, 12384 + 230);
    EXPECT_EQ(p.CurrentY, 12384 + 460);
    EXPECT_EQ(p.CurrentX, 0);
}

TEST_F(PrintRoutines, PrintWrappedDoesNotMeasureTheWordsBehindTheLastBlank) {
    EXPECT_EQ(wrapped("aa bbbbbbbbbbbbbbbbbbbb", 520), (QStringList{"aa bbbbbbbbbbbbbbbbbbbb"}));
    EXPECT_EQ(wrapped("aaaa bbbb cccccccccccccccccc", 1020), (QStringList{"aaaa bbbb cccccccccccccccccc"}));
    EXPECT_EQ(wrapped("aaaa bbbb cccc dddddddddddddddd", 1020),
              (QStringList{"aaaa bbbb ", "cccc dddddddddddddddd"}));
}

TEST_F(PrintRoutines, AWrappedTextWithNoBlankPrintsAsOneLineHoweverWide) {
    const QString longWord(200, u'x');
    EXPECT_EQ(wrapped(longWord, 500), QStringList{longWord});
}

TEST_F(PrintRoutines, AFirstWordWiderThanTheWidthPrintsWholeOnItsOwnLineAndTheTextGoesOn) {
    EXPECT_EQ(wrapped("abcdefghij klm nop", 520), (QStringList{"abcdefghij ", "klm nop"}));
    EXPECT_EQ(wrapped("abcdefghij klmnopqrst uv", 520), (QStringList{"abcdefghij ", "klmnopqrst ", "uv"}));
}

TEST_F(PrintRoutines, TheRestOfAWrappedTextLosesItsLeadingBlanks) {
    EXPECT_EQ(wrapped("aaaa     bbbb cc", 520), (QStringList{"aaaa ", "bbbb cc"}));
}

TEST_F(PrintRoutines, AnEmptyWrappedTextPrintsNothingButSetsTheLine) {
    RecordingPageSurface& p = startJob();
    printer.PrintWrapped(1440, 3000, 2880, 0, QString());
    EXPECT_TRUE(p.texts().isEmpty());
    EXPECT_EQ(p.CurrentY, 3000);
}

TEST_F(PrintRoutines, PrintWrappedRoundsItsTwipsToWholeNumbersHalfToEven) {
    RecordingPageSurface& p = startJob();
    printer.PrintWrapped(100.5, 200.5, 2880, 0, "a");
    printer.PrintWrapped(101.5, 301.4, 2880, 0, "b");
    EXPECT_EQ(p.text("a").x, 100);
    EXPECT_EQ(p.text("a").y, 200);
    EXPECT_EQ(p.text("b").x, 102);
    EXPECT_EQ(p.text("b").y, 301);
}

TEST_F(PrintRoutines, PrintWrappedBeyondSixteenBitTwipsStopsThePrintAsAnOverflow) {
    startJob();
    try {
        printer.PrintWrapped(1440, 40000, 2880, 0, "a");
        FAIL() << "a position past 32767 twips should stop the print";
    } catch (const PrintError& e) {
        EXPECT_EQ(e.number(), PrintError::kOverflow);
    }
}

TEST_F(PrintRoutines, TheHeightGivenToPrintWrappedChangesNothing) {
    const QStringList tall = wrapped("aaaa bbbb cccc dddd", 1020, 1440, 2880);
    RecordingPageSurface& p = startJob();
    printer.PrintWrapped(1440, 2880, 1020, 1, "aaaa bbbb cccc dddd");
    EXPECT_EQ(p.printedTexts(), tall);
    EXPECT_EQ(p.CurrentY, 2880 + 460);
}
