// The three work order documents printed to real PDF files and read back: the words must stand
// where the twips say, 1 point being 20 twips.
#include "FakePlatform.h"
#include "PdfText.h"
#include "TestDataRoot.h"
#include "platform/QtPrintDialogs.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"
#include "workorders/WorkOrderDocuments.h"
#include "workorders/frmTerms.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using namespace ostrel::test;

namespace {

struct WorkOrderPdf : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    QTemporaryDir out;
    QString pdf = out.filePath(QStringLiteral("job.pdf"));
    QtPrintDialogs printDialogs{QtPrintDialogs::PdfFileChooser(pdf)};
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    WorkOrderContent content;
    WorkOrderFixedPart fixed;

    void SetUp() override {
        if (!havePoppler()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
        settings.business.txtBusiness = {"Prairie Comfort Heating", "1207 Wabash Ave", "", "Springfield", "IL",
                                         "62704", "217-555-0142", "", ""};
        content.number = "2 - 326-1";
        content.date = "11/23/2026";
        content.account = "2175550199";
        content.customer = {"Mr. Dale Hensley", "88 Orchard Ln", "", "Chatham", "IL", "62629"};
        content.comment = "Dog in the yard, use the side gate";
        fixed.disclaimer = kGenericDisclaimer;
        fixed.terms = kGenericTerms;
    }
    void start() {
        printer.ShowPrinterDialog();
        printer.InitPrinter("Portrait", 0);
    }
};

} // namespace

TEST_F(WorkOrderPdf, ATwoPageWorkOrderStandsWhereItsTwipsSay) {
    for (int i = 1; i <= 14; ++i)
        content.services.push_back({QStringLiteral("Service%1").arg(i), "1:15", "$45.00"});
    start();
    PrintWorkOrder(printer, content, fixed);
    savePages(pdf, "work-order");
    const PdfText text = readPdf(pdf);
    ASSERT_EQ(text.pages.size(), 2);
    EXPECT_NEAR(text.pages[0].width, 612, 1);
    EXPECT_NEAR(text.pages[0].height, 792, 1);
    // Title at 5 in; the numbers below it; the customer at 1 in, 2.3 in; the headings on 3.7 in.
    EXPECT_NEAR(text.word("Work", 1).xMin, 7200 / 20.0, kTolerancePoints);
    EXPECT_NEAR(text.word("Hensley").yMin, text.word("Dale").yMin, kTolerancePoints);
    EXPECT_NEAR(text.word("Mr.").xMin, 1440 / 20.0, kTolerancePoints);
    EXPECT_NEAR(text.word("Service", 1).xMin, 720 / 20.0, kTolerancePoints);
    EXPECT_NEAR(text.word("Time").xMin, 9360 / 20.0, kTolerancePoints);
    EXPECT_NEAR(text.word("Price").xMin, 10800 / 20.0, kTolerancePoints);
    // The first service on 4.2 in; the price ends at 11520 twips.
    const PdfWord first = text.word("Service1");
    EXPECT_GT(first.xMin, 720 / 20.0);
    const PdfWord price = text.word("$45.00");
    EXPECT_NEAR(price.xMax, 11520 / 20.0, 1.0);
    EXPECT_NEAR(text.word("Completion").xMin, 720 / 20.0, kTolerancePoints);
    EXPECT_NEAR(text.word("Completion").yMin, 9.35 * 72, 4);
    // Page 2 has the head again and the thirteenth service on the first body line.
    EXPECT_EQ(text.word("Service13").page, 2);
    EXPECT_NEAR(text.word("Service13").yMin, first.yMin, kTolerancePoints);
    EXPECT_EQ(text.word("Hensley", 2).page, 2);
    EXPECT_EQ(text.count("AcctNo"), 2);
    EXPECT_EQ(text.count("guaranteed"), 1);
}

TEST_F(WorkOrderPdf, TheSummaryReportLaysOutItsFillInsAndLines) {
    start();
    PrintSummaryReport(printer, content, "11/22/2026");
    savePages(pdf, "summary-report");
    const PdfText text = readPdf(pdf);
    ASSERT_EQ(text.pages.size(), 1);
    EXPECT_NEAR(text.word("Start").xMin, 7200 / 20.0, kTolerancePoints);
    EXPECT_NEAR(text.word("Odometer:").yMin, text.word("Starting").yMin, kTolerancePoints);
    EXPECT_NEAR(text.word("Anomalies").yMin, 4.3 * 72, 3);
    EXPECT_NEAR(text.word("List").xMin, 720 / 20.0, kTolerancePoints);
    EXPECT_GT(text.word("performed").yMin, text.word("Reason").yMin + 8 * 9);
    EXPECT_EQ(text.count("WO"), 1);
}

TEST_F(WorkOrderPdf, ThePickListSkipsTheZeroRowAndAlignsQuantities) {
    content.picklist = {{"7", "Furnace-filter"}, {"0", "Thermocouple"}, {"15", "Wire-nuts"}};
    start();
    PrintPicklist(printer, content);
    savePages(pdf, "pick-list");
    const PdfText text = readPdf(pdf);
    ASSERT_EQ(text.pages.size(), 1);
    EXPECT_EQ(text.count("Thermocouple"), 0);
    EXPECT_NEAR(text.word("Furnace-filter").xMin, 3600 / 20.0, kTolerancePoints);
    EXPECT_NEAR(text.word("7").xMax, 1296 / 20.0, 1.0);
    EXPECT_NEAR(text.word("15").xMax, 1296 / 20.0, 1.0);
    EXPECT_NEAR(text.word("Wire-nuts").yMin - text.word("Furnace-filter").yMin, 11.5, 1.0);
    EXPECT_NEAR(text.word("Picklist").xMin, 7200 / 20.0, kTolerancePoints);
    EXPECT_NEAR(text.word("QTY").xMin, 864 / 20.0, kTolerancePoints);
    EXPECT_NEAR(text.word("DESCRIPTION").xMin, 3600 / 20.0, kTolerancePoints);
    EXPECT_NEAR(text.word("Dog").xMin, 7200 / 20.0, kTolerancePoints);
}
