// Positions are measured from the top left of what the printer can print: on a printer with
// unprintable strips at its edges every item moves in by the strips and the page is the printable
// area; a device that prints the whole sheet (a PDF) keeps the sheet's positions.
#include "FakePlatform.h"
#include "RecordingPageSurface.h"
#include "TestDataRoot.h"
#include "controls/Controls.h"
#include "printing/GridReport.h"
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

// A laser printer's strips: a quarter inch left and right, a sixth at the top, a third at the foot.
const QMarginsF kStrips(360, 240, 360, 480);

} // namespace

TEST(PrintPrintableArea, OnAPrinterWithUnprintableStripsAPositionIsMeasuredFromThePrintableCorner) {
    RecordingPageSurface p;
    p.hardwareMargins = kStrips;
    p.CurrentX = 0;
    p.CurrentY = 0;
    p.Print("Top left");
    p.CurrentX = 1440;
    p.CurrentY = 720;
    p.Print("Inch");
    p.Line(0, 1000, 2000, 1000);
    p.pictures["logo.png"] = QSizeF(1440, 1440);
    p.PaintPicture("logo.png", 100, 200, 1440, 720);
    EXPECT_EQ(p.text("Top left").x, 360);
    EXPECT_EQ(p.text("Top left").y, 240);
    EXPECT_EQ(p.text("Inch").x, 1800);
    EXPECT_EQ(p.text("Inch").y, 960);
    const PageOp line = p.of(PageOp::Kind::Line).at(0);
    EXPECT_EQ(line.x, 360);
    EXPECT_EQ(line.y, 1240);
    EXPECT_EQ(line.x2, 2360);
    EXPECT_EQ(line.y2, 1240);
    const PageOp picture = p.of(PageOp::Kind::Picture).at(0);
    EXPECT_EQ(picture.x, 460);
    EXPECT_EQ(picture.y, 440);
    EXPECT_EQ(picture.x2, 1440);
    EXPECT_EQ(picture.y2, 720);
    // The position itself stays in the page's own terms.
    EXPECT_EQ(p.CurrentX, 2000);
    EXPECT_EQ(p.CurrentY, 1000);
}

TEST(PrintPrintableArea, OnAPrinterThePageIsThePrintableAreaAndASetWidthSpansIt) {
    RecordingPageSurface p;
    p.hardwareMargins = kStrips;
    EXPECT_EQ(p.ScaleWidth(), 12240 - 720);
    EXPECT_EQ(p.ScaleHeight(), 15840 - 720);
    p.Orientation = PageSurface::kLandscape;
    EXPECT_EQ(p.ScaleWidth(), 15840 - 720);
    p.Orientation = PageSurface::kPortrait;
    // A document that sets the page to the sheet's width in twips has it span the printable width:
    // its right edge lands on the printable area's right edge.
    p.SetScaleWidth(12240);
    p.Line(0, 0, 12240, 0);
    const PageOp line = p.of(PageOp::Kind::Line).at(0);
    EXPECT_EQ(line.x, 360);
    EXPECT_DOUBLE_EQ(line.x2, 12240 - 360);
}

TEST(PrintPrintableArea, ADeviceThatPrintsTheWholeSheetKeepsTheSheetsPositions) {
    RecordingPageSurface p;
    EXPECT_EQ(p.PrintableArea(), QRectF(0, 0, 12240, 15840));
    p.CurrentX = 1440;
    p.CurrentY = 720;
    p.Print("Inch");
    EXPECT_EQ(p.text("Inch").x, 1440);
    EXPECT_EQ(p.text("Inch").y, 720);
    EXPECT_EQ(p.ScaleWidth(), 12240);
    p.SetScaleWidth(12240);
    p.Line(0, 0, 12240, 0);
    EXPECT_EQ(p.of(PageOp::Kind::Line).at(0).x2, 12240);
}

TEST(PrintPrintableArea, TheGridReportTitleAtTheTopFallsInsideThePrintableAreaCentredOnIt) {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    RecordingPrintDialogs printDialogs;
    printDialogs.hardwareMargins(kStrips);
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    Grid grid;
    grid.SetCols(5);
    grid.SetRows(1);
    const QString title = QStringLiteral("Invoices Report");
    ASSERT_EQ(PrintGridReport(printer, title, grid, 0), PrintResult::Printed);
    const PageOp op = printDialogs.lastJob().text(title);
    // 15 characters at 14 points: 2100 twips, centred on the landscape printable width.
    EXPECT_EQ(op.y, 240);
    EXPECT_EQ(op.x, 360 + ((15840 - 720) - 2100) / 2);
    // Without strips the title stands at the sheet's top, centred on the sheet, as on a PDF.
    RecordingPrintDialogs wholeSheet;
    PrinterRoutines pdf{wholeSheet, fake.dialogs, t.disk(), settings, fake.clock};
    ASSERT_EQ(PrintGridReport(pdf, title, grid, 0), PrintResult::Printed);
    EXPECT_EQ(wholeSheet.lastJob().text(title).y, 0);
    EXPECT_EQ(wholeSheet.lastJob().text(title).x, (15840 - 2100) / 2);
}
