// The reprint and the invoices report of the records screen printed to a real PDF and read back:
// the reprint stands where the first print stands, with the ship-to block beside the address.
#include "../core/frmReprintTestFixture.h"
#include "PdfSession.h"

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

namespace {

struct ReprintPdf : ::testing::Test, PdfSession {
    ReprintPdf() : PdfSession(QStringLiteral("reprint.pdf")) {}
    frmReprint& frm = session.AddScreen(ScreenId::frmReprint, std::make_unique<frmReprint>(session));

    void SetUp() override {
        if (!havePoppler()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
        session.settings.tax.cboTaxHeading1 = "Sales Tax";
        session.settings.tax.cboTaxHeading2 = "City Tax";
        for (const char* d : {"/CompletedInvoices", "/OstrelInvoicer", "/OstrelInvoicer/Narratives"})
            t.makeDir(QLatin1String(d));
        for (const auto& [number, date, name] : {std::tuple{"20260001", "11/20/2026", "Ann Lee"},
                                                 std::tuple{"20260002", "11/21/2026", "Bob Ray"}})
            WriteInvoiceImage(t.disk(), MakeInvoiceImage(ReprintScreen::invoice(number, date, name)));
        session.ShowScreen(ScreenId::frmReprint);
    }
};

} // namespace

TEST_F(ReprintPdf, TheReprintedInvoiceStandsAtTheFirstPrintsTwipsWithTheShipToBlock) {
    frm.fgReceivables.row = 1;
    frm.fgReceivables_Click();
    ASSERT_TRUE(frm.fraInvoice.visible);
    frm.cmdPrint_Click();
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    savePages(pdf, "reprint");
    const PdfText text = readPdf(pdf);
    ASSERT_EQ(text.pages.size(), 1);
    EXPECT_NEAR(text.pages[0].width, 612, 1);

    EXPECT_AT(text.word("INVOICE"), 7200, 720);
    EXPECT_AT(text.word("Date"), 7200, 1296);
    EXPECT_EQ(text.count("11/20/2026"), 2); // the header's date and the first line's service date
    // The bill-to address at 1 in, the same address shipped to at 5 in.
    EXPECT_AT(text.word("SHIPPED"), 7200, 2808);
    EXPECT_EQ(text.count("Ann"), 2);
    PdfWord billed, shipped;
    for (const PdfWord& w : text.words)
        if (w.text == "Ann") (w.xMin > 300 ? shipped : billed) = w;
    EXPECT_AT(billed, 1440, 3312);
    EXPECT_NEAR(shipped.xMin, 360, kTolerancePoints);
    EXPECT_GT(shipped.yMin, text.word("SHIPPED").yMin);
    EXPECT_EQ(text.count("Springfield,"), 2);
    // The body from the image, the first row at 4.9 in.
    EXPECT_AT(text.word("Gas"), 3312, 7056);
    EXPECT_NEAR(text.word("$33.92").xMax, 576, kTolerancePoints);
    EXPECT_NEAR(text.word("Duct").yMin, 7056 / 20.0 + lineHeight(10, true) / 20, 1.0);
    // The totals of the image: the stored shipping of $0.00 in row 4, which has no heading.
    EXPECT_AT(text.word("Sub-Total"), 8064, 12312);
    EXPECT_EQ(text.count("Sales"), 1);
    EXPECT_EQ(text.count("City"), 1);
    int zeroInRowFour = 0;
    for (const PdfWord& w : text.words)
        if (w.text == "$0.00" && std::abs(w.yMin - 13392 / 20.0) < 1.0) ++zeroInRowFour;
    EXPECT_EQ(zeroInRowFour, 1);
    EXPECT_NEAR(text.word("$91.04").xMax, 576, kTolerancePoints);
}

TEST_F(ReprintPdf, TheInvoicesReportListsEveryImageUnderItsHeads) {
    frm.cmdReport_Click();
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    savePages(pdf, "invoices-report");
    const PdfText text = readPdf(pdf);
    ASSERT_EQ(text.pages.size(), 1);
    EXPECT_NEAR(text.pages[0].width, 792, 0.5); // landscape
    const PdfWord invoices = text.word("Invoices");
    EXPECT_NEAR((invoices.xMin + text.word("Report").xMax) / 2, 396, kTolerancePoints);
    const double line = lineHeight(10, false);
    // Under "Invoice No." stands the grid's second column, the account number, as the report has
    // always printed it; the invoice number itself is not printed.
    EXPECT_AT(text.word("A-001"), 1440, 2880);
    EXPECT_AT(text.word("A-002"), 1440, 2880 + line);
    EXPECT_EQ(text.count("20260001"), 0);
    EXPECT_AT(text.word("11/20/2026"), 3600, 2880);
    EXPECT_AT(text.word("Ann"), 5040, 2880);
    EXPECT_EQ(text.count("Ann"), 1);
    EXPECT_EQ(text.count("Bob"), 1);
    EXPECT_NEAR(text.word("$91.04").xMax, 540, kTolerancePoints);
}
