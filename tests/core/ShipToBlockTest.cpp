#include "FakePlatform.h"
#include "RecordingPageSurface.h"
#include "TestDataRoot.h"
#include "invoicing/ShipToBlock.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::RecordingPageSurface;
using ostrel::test::RecordingPrintDialogs;
using ostrel::test::TestDataRoot;

namespace {

struct ShipTo : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    RecordingPrintDialogs printDialogs;
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    ShipToBlock block;

    ShipTo() {
        block.shipTo = {"Ann Lee", "12 Elm St", "", "Springfield", "IL", "62701"};
        block.shipVia = "None";
        block.shipDate = "11/20/2026";
        block.reference = "PO 7";
    }
    RecordingPageSurface& print(bool usa = true, bool narrative = false) {
        printer.ShowPrinterDialog();
        printer.InitPrinter("Portrait", 0);
        PrintShipToBlock(printer, block, QDate(2026, 11, 22), usa, narrative);
        return printDialogs.lastJob();
    }
};

} // namespace

TEST_F(ShipTo, PrintsTheAddressBesideTheBillToBlockWithNoBlankAfterTheComma) {
    auto& p = print();
    EXPECT_EQ(p.printedTexts(), (QStringList{"SHIPPED TO:", "Ann Lee", "12 Elm St", "Springfield,IL 62701"}));
    const auto head = p.text("SHIPPED TO:");
    EXPECT_DOUBLE_EQ(head.x, 7200);
    EXPECT_DOUBLE_EQ(head.y, 1.95 * 1440);
    EXPECT_DOUBLE_EQ(p.text("Ann Lee").x, 7200);
    EXPECT_GT(p.text("Ann Lee").y, head.y);
    EXPECT_GT(p.text("Springfield,IL 62701").y, p.text("12 Elm St").y);
    EXPECT_EQ(p.ForeColor, 0u);
}

TEST_F(ShipTo, OutsideTheUsaStyleCityAndPostalCodeStandOnTwoLines) {
    block.shipTo[2] = "Unit 3";
    auto& p = print(false);
    EXPECT_EQ(p.printedTexts(), (QStringList{"SHIPPED TO:", "Ann Lee", "12 Elm St", "Unit 3", "Springfield", "62701"}));
}

TEST_F(ShipTo, AllFirstFiveLinesEmptyPrintsNothing) {
    block.shipTo = {"", "", "", "", "", "62701"};
    block.shipVia = "Truck";
    auto& p = print();
    EXPECT_TRUE(p.printedTexts().isEmpty());
}

TEST_F(ShipTo, ACarrierAndAPastDateSayShippedOn) {
    block.shipVia = "UPS";
    auto& p = print();
    const auto ref = p.text("PO 7");
    EXPECT_DOUBLE_EQ(ref.x, 0.5 * 1440);
    EXPECT_DOUBLE_EQ(ref.y, 4.3 * 1440);
    EXPECT_DOUBLE_EQ(p.text("UPS").x, 2.8 * 1440);
    EXPECT_DOUBLE_EQ(p.text("UPS").y, ref.y);
    EXPECT_DOUBLE_EQ(p.text("Shipped On - 11/20/2026").x, 6.4 * 1440);
}

TEST_F(ShipTo, ACarrierAndALaterDateSayScheduledAndSitLowerWithANarrative) {
    block.shipVia = "UPS";
    block.shipDate = "12/1/2026";
    auto& p = print(true, true);
    EXPECT_DOUBLE_EQ(p.text("PO 7").y, 5.3 * 1440);
    EXPECT_DOUBLE_EQ(p.text("Sheduled - 12/1/2026").x, 6.5 * 1440);
}
