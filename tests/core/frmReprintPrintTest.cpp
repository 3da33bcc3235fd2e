#include "RecordingPageSurface.h"
#include "frmReprintTestFixture.h"
#include "invoicing/InvoicePage.h"
#include "invoicing/frmInvoice.h"

using namespace ostrel;
using ostrel::test::PageOp;
using ostrel::test::RecordingPageSurface;
using ostrel::test::RecordingPrintDialogs;
using ostrel::test::ReprintScreen;

namespace {

constexpr double kInch = 1440;
#define EXPECT_TWIPS(actual, expected) EXPECT_NEAR((actual), (expected), 0.5)

struct ReprintPrint : ReprintScreen {
    ReprintPrint() {
        session.settings.tax.cboTaxHeading1 = "Sales Tax";
        session.settings.tax.cboTaxHeading2 = "County Tax";
        post(invoice("20260001", "11/20/2026"));
        open();
        clickRow("20260001");
    }
    RecordingPageSurface& reprint() {
        frm.cmdPrint_Click();
        return fake.printDialogs.lastJob();
    }
    static int count(const RecordingPageSurface& p, const QString& text) {
        int n = 0;
        for (const PageOp& op : p.texts())
            if (op.text == text) ++n;
        return n;
    }
};

} // namespace

TEST_F(ReprintPrint, TheReprintDrawsTheFirstPrintsPageFromTheImageWithItsShipToBlock) {
    RecordingPageSurface& p = reprint();
    EXPECT_EQ(p.documentsEnded(), 1);
    EXPECT_TWIPS(p.text("INVOICE").y, 0.5 * kInch);
    // The header carries the image's creation date, number, account and reference.
    EXPECT_TWIPS(p.text("Date 11/20/2026").x, 5 * kInch);
    EXPECT_TWIPS(p.text("Date 11/20/2026").y, 0.9 * kInch);
    EXPECT_TRUE(p.printed("INVOICE NO: 20260001"));
    EXPECT_TRUE(p.printed("Acct: A-001"));
    EXPECT_EQ(p.text("Ref 20260001").x, 1872 - 600);
    // The bill-to address at 1 in, and the same address again as the ship-to block at 5 in.
    const PageOp billTo = p.text("Ann Lee");
    EXPECT_TWIPS(billTo.x, 1.0 * kInch);
    EXPECT_TWIPS(billTo.y, 2.3 * kInch);
    EXPECT_EQ(count(p, "Ann Lee"), 2);
    EXPECT_TWIPS(p.text("SHIPPED TO:").x, 5.0 * kInch);
    EXPECT_TWIPS(p.text("SHIPPED TO:").y, 1.95 * kInch);
    EXPECT_TRUE(p.printed("Springfield, IL 62701"));
    EXPECT_TRUE(p.printed("Springfield,IL 62701"));
    // "None" as the carrier: no carrier line.
    EXPECT_FALSE(p.printed("None"));
    // The body from the detail grid, the figures right-aligned at their columns.
    EXPECT_TWIPS(p.text("Gas Leak Test").x, 2.3 * kInch);
    EXPECT_TWIPS(p.text("Gas Leak Test").y, 4.9 * kInch);
    EXPECT_EQ(p.text("$33.92").x + 600, 11520);
    EXPECT_TWIPS(p.text("Duct Tape Roll").y, 4.9 * kInch + 230);
    // The totals of the image; the stored shipping of $0.00 stands in row 4 with no heading.
    EXPECT_TWIPS(p.text("Sub-Total").y, 8.55 * kInch);
    EXPECT_TRUE(p.printed("Sales Tax"));
    EXPECT_TRUE(p.printed("County Tax"));
    EXPECT_EQ(p.text("$88.92").x + 600, 11520);
    EXPECT_TWIPS(p.text("$2.12").y, 8.8 * kInch);
    const PageOp total = p.text("$91.04");
    EXPECT_TWIPS(total.y, (8.55 + 1.25) * kInch);
    EXPECT_EQ(total.font.size, 12);
    bool zeroInRowFour = false;
    for (const PageOp& op : p.texts())
        if (op.text == "$0.00" && std::abs(op.y - (8.55 + 0.75) * kInch) < 0.5) zeroInRowFour = true;
    EXPECT_TRUE(zeroInRowFour);
    // No question follows a reprint and nothing is posted.
    fake.dialogs.verify();
}

TEST_F(ReprintPrint, ARemittanceSettingPutsTheAmountLineInTheHeaderButNoDetachText) {
    session.settings.program.optReturn = true;
    RecordingPageSurface& p = reprint();
    EXPECT_TRUE(p.printed(invoicepage::kAmountEnclosed));
    EXPECT_FALSE(p.printed(invoicepage::kDetachText));
}

TEST_F(ReprintPrint, ATypedMemoIsStoredForEveryLaterInvoiceAndPrintedInBlue) {
    frm.txtMemo.text = "Thank you\nfor your business";
    RecordingPageSurface& p = reprint();
    EXPECT_EQ(t.readBytes("/InvoiceMemo.txt"), "Thank you\r\nfor your business\r\n");
    const PageOp memo = p.text("Thank you");
    EXPECT_EQ(memo.colour, 16711680);
    EXPECT_TWIPS(memo.y, 8.6 * kInch);
}

TEST_F(ReprintPrint, TheAttentionLineIsHandedToTheInvoiceScreensBoxOnly) {
    auto& invoiceScreen = session.AddScreen(ScreenId::frmInvoice, std::make_unique<frmInvoice>(session, session.catalogueLists));
    frm.txtAttn.text = "Back office";
    RecordingPageSurface& p = reprint();
    EXPECT_EQ(invoiceScreen.txtShipto[6].text, "Back office");
    EXPECT_FALSE(p.printed("Back office"));
}

TEST_F(ReprintPrint, ACancelledDialogIsAPrintErrorAndNothingIsDrawn) {
    fake.printDialogs.answer(RecordingPrintDialogs::Answer::Cancel);
    frm.cmdPrint_Click();
    EXPECT_BOX(fake.dialogs, "Print Error", "A Print Error has occurred");
    for (const auto& job : fake.printDialogs.jobs()) EXPECT_EQ(job->documentsEnded(), 0);
    fake.dialogs.verify();
}
