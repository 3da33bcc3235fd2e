// The sales report printed to a real PDF and read back: heads, columns, rows and totals stand at the
// inches the layout gives, the amounts ending under the right end of their heads.
#include "PdfSession.h"
#include "invoicing/AssociateJournal.h"
#include "printing/frmSales.h"
#include "setup/PointOfServiceNames.h"

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

namespace {

struct SalesReportPdf : ::testing::Test, PdfSession {
    SalesReportPdf() : PdfSession(QStringLiteral("sales.pdf")) {}
    frmSales& frm = session.AddScreen(ScreenId::frmSales, std::make_unique<frmSales>(session));

    void SetUp() override {
        if (!havePoppler()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
        session.settings.program.optBusinessType0 = false;
        PointOfServiceNames names;
        SaveAssociates(t.disk(), {"Crew One", "Crew Two"}, names);
        session.LoadServiceAreas();
    }

    void sale(const char* name, const char* number, QDate date, qint64 sub, qint64 tax, qint64 discount = 0) {
        AssociateJournalRecord r;
        r.Transaction = QString::fromLatin1(name);
        r.Account = QString::fromLatin1(number);
        r.JournalDate = date;
        r.Associate = QStringLiteral("Crew Two");
        r.SubTotal = Money::fromTenThousandths(sub);
        r.Tax = Money::fromTenThousandths(tax);
        r.Discount = Money::fromTenThousandths(discount);
        r.Gross = r.SubTotal + r.Tax;
        AddJournalRecord(t.disk(), r);
    }
};

} // namespace

TEST_F(SalesReportPdf, HeadColumnsRowsAndTotalsStandAtTheirInches) {
    sale("Alvarez", "20260001", QDate(2026, 11, 3), 1234500, 61725);
    sale("Brennan", "20260002", QDate(2026, 11, 9), 200000, 10000, 20000);
    session.ShowScreen(ScreenId::frmSales);
    frm.cboAssociates.SetListIndex(1);
    frm.cmdSales_Click(frmSales::kLoadGrid);
    frm.cmdSales_Click(frmSales::kPrintReport);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
    const PdfText text = readPdf(pdf);
    savePages(pdf, "sales-report");
    ASSERT_EQ(text.pages.size(), 1);
    EXPECT_NEAR(text.pages[0].width, 612, 1); // Letter, portrait

    // The title centred on the sheet.
    const PdfWord general = text.word("General");
    const PdfWord report = text.word("Report");
    EXPECT_NEAR((general.xMin + report.xMax) / 2, 306, 2);
    EXPECT_LT(general.yMin, 36);
    EXPECT_EQ(text.count("11/22/2026"), 2); // the range's end and today's date
    EXPECT_NEAR(text.word("11/1/2026").yMin, general.yMax + 1, 8);

    EXPECT_NEAR(text.word("Prairie").xMin, 0.75 * 72, kTolerancePoints);
    EXPECT_NEAR(text.word("Prairie").yMin, 0.55 * 72, 3);
    // "Sales Report for Crew Two", the second "Sales" of the page.
    const PdfWord forWord = text.word("for");
    EXPECT_NEAR(forWord.yMin, 1.5 * 72, 3);
    int salesOnLine = 0;
    for (const PdfWord& w : text.words)
        if (w.text == "Sales" && std::abs(w.yMin - forWord.yMin) < 1) {
            ++salesOnLine;
            EXPECT_NEAR(w.xMin, 0.75 * 72, kTolerancePoints);
        }
    EXPECT_EQ(salesOnLine, 1);
    EXPECT_NEAR(text.word("Two").yMin, forWord.yMin, 1);

    const PdfWord transaction = text.word("Transaction");
    EXPECT_NEAR(transaction.xMin, 72, kTolerancePoints);
    EXPECT_NEAR(transaction.yMin, 144, 3);
    EXPECT_NEAR(text.word("Account").xMin, 144, kTolerancePoints);
    EXPECT_NEAR(text.word("SubTotal").xMin, 4.1 * 72, kTolerancePoints);
    EXPECT_NEAR(text.word("Discount").xMin, 5.2 * 72, kTolerancePoints);
    EXPECT_NEAR(text.word("Tax").xMin, 6.4 * 72, kTolerancePoints);
    const PdfWord total = text.word("Total");
    EXPECT_NEAR(total.xMin, 7.35 * 72, kTolerancePoints);

    const PdfWord alvarez = text.word("Alvarez");
    EXPECT_NEAR(alvarez.xMin, 72, kTolerancePoints);
    EXPECT_NEAR(alvarez.yMin, 2.5 * 72, 3);
    EXPECT_NEAR(text.word("20260001").xMin, 144, kTolerancePoints);
    EXPECT_NEAR(text.word("20260001").yMin, alvarez.yMin, 1);
    // Amounts end where their heads end.
    EXPECT_NEAR(text.word("$123.45").xMax, text.word("SubTotal").xMax, 1);
    EXPECT_NEAR(text.word("$2.00").xMax, text.word("Discount").xMax, 1);
    EXPECT_NEAR(text.word("$6.17").xMax, text.word("Tax").xMax, 1);
    EXPECT_NEAR(text.word("$129.62").xMax, total.xMax, 1);
    const PdfWord brennan = text.word("Brennan");
    EXPECT_GT(brennan.yMin, alvarez.yMin + 8);
    EXPECT_NEAR(text.word("$19.00").xMax, total.xMax, 1); // gross less the discount

    const PdfWord goods = text.word("Goods");
    EXPECT_NEAR(goods.xMin, 4.5 * 72, kTolerancePoints);
    EXPECT_GT(goods.yMin, brennan.yMax + 20);
    EXPECT_NEAR(text.word("$143.45").xMax, total.xMax, 1);
    EXPECT_NEAR(text.word("$143.45").yMin, goods.yMin, 1);
    // One line each, in their order.
    const PdfWord taken = text.word("Taken");
    const PdfWord collected = text.word("Collected");
    const PdfWord before = text.word("Total(before");
    EXPECT_GT(taken.yMin, goods.yMin + 5);
    EXPECT_GT(collected.yMin, taken.yMin + 5);
    EXPECT_GT(before.yMin, collected.yMin + 5);
    EXPECT_NEAR(text.word("$7.17").yMin, collected.yMin, 1);
    EXPECT_NEAR(text.word("$150.62").xMax, total.xMax, 1); // gross before discounts
    EXPECT_NEAR(text.word("$150.62").yMin, before.yMin, 1);
}
