#include "FakePlatform.h"
#include "RecordingPageSurface.h"
#include "TestDataRoot.h"
#include "invoicing/InvoicePage.h"
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

constexpr double kInch = 1440;

// Positions in inches land on whole twips, as the printer layer keeps them.
#define EXPECT_TWIPS(actual, expected) EXPECT_NEAR((actual), (expected), 0.5)

struct InvoicePage : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    RecordingPrintDialogs printDialogs;
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    InvoicePageContents invoice;

    InvoicePage() {
        settings.business.txtBusiness = {"Prairie Comfort", "1207 Wabash Ave", "",      "Springfield", "IL",
                                         "62704",           "217-555-0142",    "",      ""};
        invoice.invoiceNo = "20260007";
        invoice.account = "2175550199";
        invoice.date = "11/22/2026";
        invoice.reference = "PO 4411";
        invoice.billTo = {"Dana Whitfield", "88 Elm St", "", "Springfield", "IL", "62701"};
        invoice.subTotal = "$45.00";
        invoice.tax = "$3.71";
        invoice.tax2 = "$0.00";
        invoice.total = "$48.71";
        invoice.handling = "$0.00";
        invoice.taxHeading1 = "Sales Tax";
        invoice.taxHeading2 = "Tax";
        t.makeDir("/OstrelInvoicer");
        t.makeDir("/OstrelInvoicer/Narratives");
    }

    void addLines(int n) {
        for (int i = 1; i <= n; ++i)
            invoice.lines.push_back({"1", QStringLiteral("Line %1").arg(i), "", "$1.00", "$1.00", "True"});
    }

    RecordingPageSurface& print() {
        printer.ShowPrinterDialog();
        printer.InitPrinter("Portrait", settings.colors.ckColor);
        PrintInvoicePage(printer, invoice);
        return printDialogs.lastJob();
    }

    static QVector<PageOp> onPage(const RecordingPageSurface& p, int page) {
        QVector<PageOp> out;
        for (const PageOp& op : p.texts())
            if (op.page == page) out.push_back(op);
        return out;
    }
    static PageOp textOnPage(const RecordingPageSurface& p, int page, const QString& text) {
        for (const PageOp& op : onPage(p, page))
            if (op.text == text) return op;
        ADD_FAILURE() << "no " << text.toStdString() << " on page " << page;
        return {};
    }
};

} // namespace

TEST_F(InvoicePage, AShortInvoiceDrawsEveryBlockAtItsPlace) {
    invoice.lines.push_back({"1", "Tune Up", "11/20/2026", "$45.00", "$45.00", "True"});
    RecordingPageSurface& p = print();
    EXPECT_EQ(p.documentsEnded(), 1);
    EXPECT_EQ(p.pagesEnded(), 0);
    const PageOp title = p.text("INVOICE");
    EXPECT_TWIPS(title.x, 5 * kInch);
    EXPECT_TWIPS(title.y, 0.5 * kInch);
    EXPECT_EQ(title.font.size, 20);
    EXPECT_TWIPS(p.text("Prairie Comfort").x, 0.75 * kInch);
    EXPECT_TWIPS(p.text("Date 11/22/2026").y, 0.9 * kInch);
    EXPECT_TWIPS(p.text("INVOICE NO: 20260007").x, 5 * kInch);
    EXPECT_TWIPS(p.text("INVOICE NO: 20260007").y, 0.9 * kInch + 230);
    EXPECT_TWIPS(p.text("Acct: 2175550199").y, 0.9 * kInch + 460);
    EXPECT_TWIPS(p.text("Page 1").y, 0.9 * kInch + 690);
    EXPECT_FALSE(p.printed(invoicepage::kAmountEnclosed));
    EXPECT_FALSE(p.printed(invoicepage::kDetachText));
    EXPECT_TWIPS(p.text("Reference").y, 4.05 * kInch);
    // The reference is centred on 1872: seven characters of 100 twips.
    EXPECT_EQ(p.text("PO 4411").x, 1872 - 350);
    EXPECT_TWIPS(p.text("QTY").y, 4.55 * kInch);
    EXPECT_TWIPS(p.text("TOTAL").x, 7.5 * kInch);
    EXPECT_TWIPS(p.text("Dana Whitfield").y, 2.3 * kInch);
    EXPECT_TRUE(p.printed("Springfield, IL 62701"));

    const PageOp quantity = p.text("1");
    EXPECT_EQ(quantity.x + 100, 1224);
    EXPECT_TWIPS(quantity.y, 4.9 * kInch);
    EXPECT_EQ(p.text("11/20/2026").x, 2520 - 500);
    EXPECT_TWIPS(p.text("Tune Up").x, 2.3 * kInch);
    EXPECT_TWIPS(p.text("Tune Up").y, 4.9 * kInch);

    EXPECT_TWIPS(p.text("Sub-Total").x, 5.6 * kInch);
    EXPECT_TWIPS(p.text("Sub-Total").y, 8.55 * kInch);
    EXPECT_TWIPS(p.text("Handling").y, (8.55 + 1.0) * kInch);
    const PageOp total = p.text("$48.71");
    EXPECT_TWIPS(total.y, (8.55 + 1.25) * kInch);
    EXPECT_EQ(total.x + 720, 11520); // six characters at 12 points
    EXPECT_EQ(total.font.size, 12);
    // The price and the line total of the body and the sub-total all read $45.00.
    int amounts = 0;
    for (const PageOp& op : p.texts())
        if (op.text == "$45.00") ++amounts;
    EXPECT_EQ(amounts, 3);
    EXPECT_EQ(p.text("$0.00").x + 500, 11520); // the second tax and the handling
}

TEST_F(InvoicePage, TheFrameIsRuledAtItsFixedPlaces) {
    RecordingPageSurface& p = print();
    const auto boxes = p.of(PageOp::Kind::Box);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].x, 360);
    EXPECT_EQ(boxes[0].y, 504);
    EXPECT_EQ(boxes[0].x2, 11880);
    EXPECT_EQ(boxes[0].y2, 5040);
    QVector<double> horizontal;
    for (const PageOp& op : p.of(PageOp::Kind::Line))
        if (op.y == op.y2 && op.x == 360) horizontal.push_back(op.y);
    EXPECT_EQ(horizontal, (QVector<double>{5760, 6120, 6480, 6840, 12240, 13680, 14400}));
    EXPECT_EQ(p.of(PageOp::Kind::Line).size(), 7 + 5 + 6);
}

TEST_F(InvoicePage, ALongDescriptionWrapsInsideItsColumnAndPushesTheNextRowDown) {
    const QString longText =
        QStringLiteral("Replace the condenser fan motor and capacitor, check refrigerant charge and clean coils");
    invoice.lines.push_back({"2", longText, "", "$120.00", "$240.00", "True"});
    invoice.lines.push_back({"1", "Filter", "", "$12.50", "$12.50", "True"});
    RecordingPageSurface& p = print();
    QVector<PageOp> pieces;
    for (const PageOp& op : p.texts())
        if (qAbs(op.x - 2.3 * kInch) < 0.5 && op.y >= 7000 && op.y < 8 * kInch) pieces.push_back(op);
    ASSERT_EQ(pieces.size(), 4); // three lines of the long text, one of Filter
    for (int i = 0; i < 3; ++i) {
        EXPECT_TWIPS(pieces[i].y, 4.9 * kInch + 230 * i);
        // Each line fits the 4248 twips of the column, so it ends before 7920.
        EXPECT_LE(pieces[i].x + pieces[i].text.trimmed().size() * 100, 7920);
    }
    EXPECT_EQ(pieces[3].text, "Filter");
    EXPECT_TWIPS(pieces[3].y, 4.9 * kInch + 690);
    // The figures stay on the first line of their row.
    EXPECT_TWIPS(p.text("$240.00").y, 4.9 * kInch);
    EXPECT_TWIPS(p.text("2").y, 4.9 * kInch);
}

TEST_F(InvoicePage, ACompanyNameOf26CharactersPrintsAtSize10AndOneOf25AtTheLetterheadsSize) {
    settings.business.txtBusiness[0] = QString(26, u'A');
    EXPECT_EQ(print().text(QString(26, u'A')).font.size, 10);
    settings.business.txtBusiness[0] = QString(25, u'B');
    EXPECT_EQ(print().text(QString(25, u'B')).font.size, 12);
}

TEST_F(InvoicePage, WithANarrativeTheFirstBodyStaysAt4_9AndContinuationPagesStartAt5_9) {
    t.writeBytes("/OstrelInvoicer/Narratives/20260007.txt", "Work done as agreed.\r\n");
    addLines(30);
    RecordingPageSurface& p = print();
    EXPECT_EQ(p.pagesEnded(), 1);
    EXPECT_TWIPS(textOnPage(p, 1, "Line 1").y, 4.9 * kInch);
    EXPECT_TWIPS(textOnPage(p, 1, "Reference").y, 5.05 * kInch);
    EXPECT_TWIPS(textOnPage(p, 1, "QTY").y, 5.55 * kInch);
    EXPECT_TWIPS(textOnPage(p, 1, "Line 20").y, 4.9 * kInch + 19 * 230);
    EXPECT_TWIPS(textOnPage(p, 2, "Line 21").y, 5.9 * kInch);
    EXPECT_TWIPS(textOnPage(p, 2, "Page 2").x, 5 * kInch);
    // The rules stand one inch lower.
    bool lowered = false;
    for (const PageOp& op : p.of(PageOp::Kind::Line))
        lowered = lowered || (op.y == 7200 && op.y2 == 7200);
    EXPECT_TRUE(lowered);
    // The narrative itself is not printed.
    EXPECT_FALSE(p.printed("Work done as agreed."));
}

TEST_F(InvoicePage, SixtyLinesGoOverPagesWithTheRemittanceSlipOnTheFirstOnly) {
    invoice.remittance = true;
    addLines(60);
    RecordingPageSurface& p = print();
    // Twenty lines fill a page; the sixtieth ends exactly at the bottom, so the totals get a page
    // of their own.
    EXPECT_EQ(p.pagesEnded(), 3);
    EXPECT_TWIPS(textOnPage(p, 1, invoicepage::kDetachText).y, 3.6 * kInch);
    EXPECT_EQ(textOnPage(p, 1, invoicepage::kDetachText).font.size, 6);
    EXPECT_TWIPS(textOnPage(p, 2, invoicepage::kAmountEnclosed).x, 5 * kInch);
    int detach = 0;
    int subTotals = 0;
    for (const PageOp& op : p.texts()) {
        if (op.text == invoicepage::kDetachText) ++detach;
        if (op.text == "Sub-Total") {
            ++subTotals;
            EXPECT_EQ(op.page, 4);
        }
    }
    EXPECT_EQ(detach, 1);
    EXPECT_EQ(subTotals, 1);
    EXPECT_TWIPS(textOnPage(p, 1, "Line 20").y, 4.9 * kInch + 19 * 230);
    EXPECT_TWIPS(textOnPage(p, 2, "Line 21").y, 4.9 * kInch);
    EXPECT_TWIPS(textOnPage(p, 3, "Line 41").y, 4.9 * kInch);
    EXPECT_TWIPS(textOnPage(p, 4, "$48.71").y, 9.8 * kInch);
    EXPECT_TWIPS(textOnPage(p, 4, "Page 4").x, 5 * kInch);
    // Each continuation page heads its columns twice, at the same place.
    int heads = 0;
    for (const PageOp& op : onPage(p, 2))
        if (op.text == "QTY") ++heads;
    EXPECT_EQ(heads, 2);
}

TEST_F(InvoicePage, WithoutSavedTermsAnEmptyLineIsPrintedAndWithThemTheirText) {
    addLines(1);
    RecordingPageSurface& plain = print();
    EXPECT_EQ(plain.texts().last().text, "$48.71");

    t.writeBytes("/StatementTerms.txt", "Payment due in Full within 10 Days\r\n");
    RecordingPageSurface& p = print();
    const PageOp terms = p.text("Payment due in Full within 10 Days");
    EXPECT_TWIPS(terms.x, 1.3 * kInch);
    EXPECT_TWIPS(terms.y, 9.8 * kInch + 276);
    EXPECT_EQ(terms.font.size, 12);
}

TEST_F(InvoicePage, AMemoLongerThanThePageStopsAt13824AndLeavesTheBlueOn) {
    TextWriter memo;
    for (int i = 1; i <= 20; ++i)
        memo.writeString(QStringLiteral("Memo line %1").arg(i));
    t.disk().ReplaceTextFile(invoicepage::kMemoFile, memo);
    printer.ShowPrinterDialog();
    printer.InitPrinter("Portrait", 0);
    PrintInvoiceMemo(printer);
    RecordingPageSurface& p = printDialogs.lastJob();
    const auto texts = p.texts();
    ASSERT_FALSE(texts.isEmpty());
    EXPECT_TWIPS(texts.first().y, 8.6 * kInch);
    EXPECT_EQ(texts.first().x, 1872);
    for (const PageOp& op : texts) {
        EXPECT_EQ(op.colour, 16711680u);
        EXPECT_LE(op.y, 13824);
    }
    // 12384 + k * 230 passes 13824 after the seventh line.
    EXPECT_EQ(texts.size(), 7);
    EXPECT_EQ(p.ForeColor, 16711680u);

    TextWriter shortMemo;
    shortMemo.writeString(QStringLiteral("Thank you"));
    t.disk().ReplaceTextFile(invoicepage::kMemoFile, shortMemo);
    PrintInvoiceMemo(printer);
    EXPECT_EQ(p.ForeColor, 0u);
}

TEST_F(InvoicePage, ADraftHasItsTitleAndNoTotals) {
    invoice.draft = true;
    addLines(1);
    RecordingPageSurface& p = print();
    EXPECT_TRUE(p.printed("DRAFT INVOICE"));
    EXPECT_FALSE(p.printed("Sub-Total"));
    EXPECT_FALSE(p.printed("$48.71"));
}
