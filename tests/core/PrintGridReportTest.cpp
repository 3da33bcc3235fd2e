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
using Answer = ostrel::test::RecordingPrintDialogs::Answer;

namespace {

const QString kTitle = QStringLiteral("Invoices Report");

struct GridReportPrinting : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    RecordingPrintDialogs printDialogs;
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    Grid grid;

    GridReportPrinting() {
        settings.business.txtBusiness = {
            "Prairie Comfort", "1207 Wabash Ave", "", "Springfield", "IL", "62704", "217-555-0142", "", ""};
        fake.clock.set(QDate(2026, 3, 4), QTime(10, 0));
        // The invoice grid: number, account, name, date, amount.
        grid.SetCols(5);
        grid.SetRows(1);
        const QStringList heads = {"Invoice", "Account", "Name", "Date", "Amount"};
        for (int c = 0; c < 5; ++c)
            grid.SetTextMatrix(0, c, heads[c]);
    }
    void addRow(const QString& number, const QString& account, const QString& name, const QString& date,
                const QString& amount) {
        const int r = grid.Rows();
        grid.SetRows(r + 1);
        const QStringList cells = {number, account, name, date, amount};
        for (int c = 0; c < 5; ++c)
            grid.SetTextMatrix(r, c, cells[c]);
    }
    RecordingPageSurface& job() { return printDialogs.lastJob(); }
};

} // namespace

TEST_F(GridReportPrinting, AGridWithOnlyTheHeadingRowPrintsTheHeadingPageAlone) {
    EXPECT_EQ(PrintGridReport(printer, kTitle, grid, 0), PrintResult::Printed);
    EXPECT_EQ(job().pagesEnded(), 0);
    EXPECT_EQ(job().documentsEnded(), 1);
    EXPECT_EQ(job().printedTexts(),
              (QStringList{kTitle, "Prairie Comfort", "1207 Wabash Ave", "Springfield, IL. 62704",
                           "Telephone: 217-555-0142", "3/4/2026", "Invoice No.", "Invoice Date",
                           "Account Name", "Amount", "Comment/Action"}));
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
}

TEST_F(GridReportPrinting, TheReportIsALandscapeJobWithoutAConfirmationQuestion) {
    settings.colors.ckColor = 1;
    addRow("110-1", "A100", "Ann Lee", "3/1/2026", "$120.00");
    EXPECT_EQ(PrintGridReport(printer, kTitle, grid, 0), PrintResult::Printed);
    const auto begins = job().of(PageOp::Kind::Begin);
    ASSERT_EQ(begins.size(), 1);
    EXPECT_EQ(begins[0].orientation, 2);
    EXPECT_EQ(begins[0].colorMode, 2);
    EXPECT_EQ(printDialogs.shown(), 1);
    EXPECT_TRUE(fake.dialogs.boxes().isEmpty());
}

TEST_F(GridReportPrinting, TheTitleIsCentredAcrossTheLandscapePageAtSizeFourteenBold) {
    PrintGridReport(printer, kTitle, grid, 0);
    const PageOp title = job().text(kTitle);
    // 15 characters at 14 points: 2100 twips on a 15840 twip wide page.
    EXPECT_EQ(title.x, (15840 - 2100) / 2);
    EXPECT_EQ(title.y, 0);
    EXPECT_EQ(title.font.size, 14);
    EXPECT_TRUE(title.font.bold);
}

TEST_F(GridReportPrinting, TheLetterheadAndTodaysDateStandAtTheTop) {
    PrintGridReport(printer, kTitle, grid, 0);
    const PageOp name = job().text("Prairie Comfort");
    EXPECT_EQ(name.x, 1080);
    EXPECT_DOUBLE_EQ(name.y, 576);
    EXPECT_EQ(name.font.size, 12);
    EXPECT_TRUE(name.font.bold);
    const PageOp date = job().text("3/4/2026");
    EXPECT_EQ(date.x, 10080);
    EXPECT_EQ(date.y, 720);
    EXPECT_EQ(date.font.size, 10);
    EXPECT_FALSE(date.font.bold);
}

TEST_F(GridReportPrinting, TheColumnHeadsAreBoldOnOneLineWithTheAmountEndingAt10800) {
    PrintGridReport(printer, kTitle, grid, 0);
    const struct {
        const char* text;
        double x;
    } heads[] = {{"Invoice No.", 1440},
                 {"Invoice Date", 3600},
                 {"Account Name", 5040},
                 {"Amount", 10800 - 600},
                 {"Comment/Action", 11520}};
    for (const auto& h : heads) {
        const PageOp op = job().text(h.text);
        EXPECT_EQ(op.x, h.x) << h.text;
        EXPECT_EQ(op.y, 2520) << h.text;
        EXPECT_TRUE(op.font.bold) << h.text;
        EXPECT_EQ(op.font.size, 10) << h.text;
    }
}

TEST_F(GridReportPrinting, EachRowPrintsColumnsOneThreeTwoAndFourSoTheAccountStandsUnderInvoiceNo) {
    addRow("110-1", "A100", "Ann Lee", "3/1/2026", "$120.00");
    addRow("110-2", "B200", "Bob Stone", "3/2/2026", "$1,234.50");
    PrintGridReport(printer, kTitle, grid, 0);
    EXPECT_FALSE(job().printed("110-1"));
    const double y1 = 2880;
    const double y2 = 2880 + 230;
    EXPECT_EQ(job().text("A100").x, 1440);
    EXPECT_EQ(job().text("A100").y, y1);
    EXPECT_EQ(job().text("3/1/2026").x, 3600);
    EXPECT_EQ(job().text("Ann Lee").x, 5040);
    EXPECT_EQ(job().text("$120.00").x, 10800 - 700);
    EXPECT_EQ(job().text("$120.00").y, y1);
    EXPECT_FALSE(job().text("Ann Lee").font.bold);
    EXPECT_EQ(job().text("B200").y, y2);
    EXPECT_EQ(job().text("$1,234.50").x, 10800 - 900);
    const auto lines = job().texts();
    int commentLines = 0;
    for (const PageOp& op : lines) {
        if (op.text != "_________________________________") continue;
        EXPECT_EQ(op.x, 11520);
        EXPECT_EQ(op.y, commentLines == 0 ? y1 : y2);
        ++commentLines;
    }
    EXPECT_EQ(commentLines, 2);
}

TEST_F(GridReportPrinting, ARowThatWouldReachTheBottomStartsANewPageUnderARepeatedHeading) {
    // Rows from 2880 down, 230 each: the 41st would end at 12310, past the 12240 of the page.
    for (int i = 1; i <= 41; ++i)
        addRow(QString::number(i), QStringLiteral("R%1").arg(i), "Name", "3/1/2026", "$1.00");
    PrintGridReport(printer, kTitle, grid, 0);
    EXPECT_EQ(job().pagesEnded(), 1);
    EXPECT_EQ(job().text("R40").page, 1);
    EXPECT_EQ(job().text("R40").y, 2880 + 39 * 230);
    const PageOp last = job().text("R41");
    EXPECT_EQ(last.page, 2);
    EXPECT_EQ(last.y, 2880);
    EXPECT_EQ(last.x, 1440);
    int titles = 0;
    int dates = 0;
    for (const PageOp& op : job().texts()) {
        if (op.text == kTitle) {
            EXPECT_EQ(op.page, ++titles);
        }
        if (op.text == "3/4/2026") ++dates;
    }
    EXPECT_EQ(titles, 2);
    EXPECT_EQ(dates, 2);
}

TEST_F(GridReportPrinting, CancelInTheDialogSaysTheReportWillNotBePrinted) {
    printDialogs.answer(Answer::Cancel);
    fake.dialogs.expect("", "The Report will not be Printed", vbOK);
    EXPECT_EQ(PrintGridReport(printer, kTitle, grid, 0), PrintResult::Cancelled);
    fake.dialogs.verify();
}

TEST_F(GridReportPrinting, APrinterFailureGivesThePrintErrorAndEndsTheReport) {
    addRow("110-1", "A100", "Ann Lee", "3/1/2026", "$120.00");
    printDialogs.failNextJobAt(3);
    fake.dialogs.expect("Print Error", "A Print Error has occurred", vbOK);
    EXPECT_EQ(PrintGridReport(printer, kTitle, grid, 0), PrintResult::Failed);
    fake.dialogs.verify();
    EXPECT_EQ(job().documentsEnded(), 0);
    EXPECT_FALSE(job().printed("A100"));
}

TEST_F(GridReportPrinting, AGridWithTooFewColumnsStopsWithThePrintError) {
    grid.SetCols(3);
    grid.SetRows(2);
    grid.SetTextMatrix(1, 1, "A100");
    fake.dialogs.expect("Print Error", "A Print Error has occurred", vbOK);
    EXPECT_EQ(PrintGridReport(printer, kTitle, grid, 0), PrintResult::Failed);
    fake.dialogs.verify();
}
