#include "workorders/WorkOrderDocuments.h"
#include "FakePlatform.h"
#include "RecordingPageSurface.h"
#include "TestDataRoot.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"
#include "workorders/frmTerms.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::PageOp;
using ostrel::test::RecordingPageSurface;
using ostrel::test::RecordingPrintDialogs;
using ostrel::test::TestDataRoot;

namespace {

struct Documents : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    RecordingPrintDialogs printDialogs;
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    WorkOrderContent content;
    WorkOrderFixedPart fixed;

    Documents() {
        settings.business.txtBusiness = {"Prairie Comfort", "1207 Wabash Ave", "", "Springfield", "IL",
                                         "62704",           "217-555-0142",    "", ""};
        content.number = "2 - 326-1";
        content.date = "11/23/2026";
        content.account = "2175550199";
        content.customer = {"Mr. Dale Hensley", "88 Orchard Ln", "", "Chatham", "IL", "62629"};
        content.comment = "Dog in the yard, use the side gate";
        fixed.disclaimer = kGenericDisclaimer;
        fixed.terms = kGenericTerms;
        fixed.returnParts = "Return all replaced parts to the customer";
    }
    RecordingPageSurface& startJob() {
        printer.ShowPrinterDialog();
        printer.InitPrinter("Portrait", settings.colors.ckColor);
        return printDialogs.lastJob();
    }
    void services(int n) {
        for (int i = 1; i <= n; ++i)
            content.services.push_back({QStringLiteral("Service %1").arg(i), "1:15", "$45.00"});
    }
    static QVector<PageOp> onPage(const QVector<PageOp>& ops, int page) {
        QVector<PageOp> out;
        for (const PageOp& op : ops)
            if (op.page == page) out.push_back(op);
        return out;
    }
    static bool hasText(const QVector<PageOp>& ops, const QString& text) {
        for (const PageOp& op : ops)
            if (op.kind == PageOp::Kind::Text && op.text == text) return true;
        return false;
    }
    static bool textStartsWithAt(const RecordingPageSurface& p, double y) {
        for (const PageOp& op : p.texts())
            if (op.y == y) return true;
        return false;
    }
};

} // namespace

TEST_F(Documents, WorkOrderHeadPrintsTitleNumbersCustomerAndHeadingsAtTheirPlaces) {
    services(1);
    RecordingPageSurface& p = startJob();
    PrintWorkOrder(printer, content, fixed);
    EXPECT_EQ(p.ScaleWidth(), 12240);
    const PageOp title = p.text("Work Order");
    EXPECT_EQ(title.x, 7200);
    EXPECT_EQ(title.y, 720);
    EXPECT_EQ(title.font.size, 26);
    const PageOp number = p.text("Work Order No 2 - 326-1");
    EXPECT_EQ(number.x, 7200);
    EXPECT_EQ(number.y, 1440);
    EXPECT_TRUE(number.font.bold);
    EXPECT_EQ(number.font.size, 10);
    EXPECT_EQ(p.text("Scheduled Date 11/23/2026").y, 1440 + 230);
    EXPECT_EQ(p.text("Customer AcctNo 2175550199").y, 1440 + 460);
    EXPECT_EQ(p.text("Mr. Dale Hensley").x, 1440);
    EXPECT_DOUBLE_EQ(p.text("Mr. Dale Hensley").y, 2.3 * 1440);
    EXPECT_TRUE(p.printed("Chatham, IL 62629"));
    for (auto [text, x] : {std::pair{"Service", 720.0}, {"Time", 9360.0}, {"Price", 10800.0}}) {
        const PageOp h = p.text(text);
        EXPECT_EQ(h.x, x) << text;
        EXPECT_DOUBLE_EQ(h.y, 3.7 * 1440) << text;
        EXPECT_EQ(h.font.size, 12);
        EXPECT_TRUE(h.font.bold);
    }
    // The box: its top and bottom and its two sides.
    const auto lines = p.of(PageOp::Kind::Line);
    auto drawn = [&](double x1, double y1, double x2, double y2) {
        for (const PageOp& l : lines)
            if (l.x == x1 && l.y == y1 && l.x2 == x2 && l.y2 == y2) return true;
        return false;
    };
    EXPECT_TRUE(drawn(360, 5760, 11880, 5760));
    EXPECT_TRUE(drawn(360, 14400, 11880, 14400));
    EXPECT_TRUE(drawn(360, 5760, 360, 14400));
    EXPECT_TRUE(drawn(11880, 5760, 11880, 14400));
    EXPECT_TRUE(drawn(360, 13320, 11880, 13320));
    EXPECT_EQ(p.documentsEnded(), 1);
}

TEST_F(Documents, WorkOrderBodyRowsStartAt42InchesEveryThreeTenthsBoldItalic) {
    content.services = {{"Tune Up", "1:00", "$45.00"}, {"Duct Cleaning", "2:30", "$1,120.00"}};
    RecordingPageSurface& p = startJob();
    PrintWorkOrder(printer, content, fixed);
    const PageOp first = p.text("_____   Tune Up");
    EXPECT_EQ(first.x, 720);
    EXPECT_NEAR(first.y, 4.2 * 1440, 0.01);
    EXPECT_TRUE(first.font.bold);
    EXPECT_TRUE(first.font.italic);
    EXPECT_EQ(p.text("1:00").x, 9360);
    const PageOp price = p.text("$1,120.00");
    EXPECT_EQ(price.x + 9 * 100, 11520); // right-aligned: nine characters of 100 twips end at 11520
    EXPECT_NEAR(p.text("_____   Duct Cleaning").y, 4.5 * 1440, 0.01);
}

TEST_F(Documents, AServiceListLongerThanOnePageRepeatsTheWholePageHeadAndRestartsAt42) {
    services(14);
    RecordingPageSurface& p = startJob();
    PrintWorkOrder(printer, content, fixed);
    ASSERT_EQ(p.pagesEnded(), 1);
    const auto page1 = onPage(p.ops, 1);
    const auto page2 = onPage(p.ops, 2);
    // Twelve rows fit above the lower part.
    EXPECT_TRUE(hasText(page1, "_____   Service 12"));
    EXPECT_FALSE(hasText(page1, "_____   Service 13"));
    for (const char* head : {"Work Order", "Prairie Comfort", "Work Order No 2 - 326-1", "Scheduled Date 11/23/2026",
                             "Customer AcctNo 2175550199", "Mr. Dale Hensley", "Service", "Time", "Price"})
        EXPECT_TRUE(hasText(page2, head)) << head;
    for (const PageOp& op : page2) {
        if (op.text == "_____   Service 13") {
            EXPECT_NEAR(op.y, 4.2 * 1440, 0.01);
            // The new page goes on in size 10, no longer bold.
            EXPECT_EQ(op.font.size, 10);
            EXPECT_FALSE(op.font.bold);
        }
    }
    EXPECT_TRUE(hasText(page2, "_____   Service 14"));
    // The box is drawn again on the new page.
    int boxTops = 0;
    for (const PageOp& op : page2)
        boxTops += op.kind == PageOp::Kind::Line && op.y == 5760 && op.y2 == 5760;
    EXPECT_EQ(boxTops, 1);
    // The lower part is the first page's only.
    EXPECT_FALSE(hasText(page2, "Completion Comments:"));
    EXPECT_EQ(p.documentsEnded(), 1);
}

TEST_F(Documents, ShopRepairPrintsDisclaimerAndTermsWrappedInTheLowerPart) {
    services(1);
    RecordingPageSurface& p = startJob();
    PrintWorkOrder(printer, content, fixed);
    const QStringList texts = p.printedTexts();
    const QString all = texts.join(u' ');
    EXPECT_TRUE(all.contains("Any alteration or deviation"));
    EXPECT_TRUE(all.contains("All material is guaranteed"));
    EXPECT_TRUE(textStartsWithAt(p, 11880));
    EXPECT_TRUE(textStartsWithAt(p, 12960));
    for (const PageOp& op : p.texts())
        if (op.y == 11880 || op.y == 12960) {
            EXPECT_EQ(op.x, 720);
            EXPECT_EQ(op.font.size, 8);
        }
    const PageOp comments = p.text("Completion Comments:");
    EXPECT_EQ(comments.x, 720);
    EXPECT_NEAR(comments.y, 9.35 * 1440, 0.01);
}

TEST_F(Documents, AnEmptyTermsOrDisclaimerPrintsNothingInItsPlace) {
    services(1);
    fixed.terms.clear();
    RecordingPageSurface& p = startJob();
    PrintWorkOrder(printer, content, fixed);
    EXPECT_FALSE(p.printedTexts().join(u' ').contains("All material is guaranteed"));
    EXPECT_FALSE(textStartsWithAt(p, 12960));
    EXPECT_TRUE(textStartsWithAt(p, 11880));
}

TEST_F(Documents, AssociateSalesWorkOrderHasNoDisclaimerTermsOrReturnParts) {
    services(1);
    fixed.shopRepair = false;
    fixed.ckInstructions = -1;
    RecordingPageSurface& p = startJob();
    PrintWorkOrder(printer, content, fixed);
    const QString all = p.printedTexts().join(u' ');
    EXPECT_FALSE(all.contains("Any alteration"));
    EXPECT_FALSE(all.contains("All material"));
    EXPECT_FALSE(all.contains("Return all replaced parts"));
    EXPECT_TRUE(p.printed("Completion Comments:"));
}

TEST_F(Documents, TheReturnPartsTextNeverPrintsForATickedBox) {
    services(1);
    fixed.ckInstructions = 1;
    RecordingPageSurface& p = startJob();
    PrintWorkOrder(printer, content, fixed);
    EXPECT_FALSE(p.printedTexts().join(u' ').contains("Return all replaced parts"));
    EXPECT_FALSE(textStartsWithAt(p, 11664));
}

TEST_F(Documents, SummaryReportPrintsItsFillInsRuledLinesAndTheSignatureLine) {
    RecordingPageSurface& p = startJob();
    PrintSummaryReport(printer, content, "11/22/2026");
    EXPECT_EQ(p.text("Date 11/22/2026").x, 7200);
    EXPECT_EQ(p.text("Date 11/22/2026").y, 1.5 * 1440);
    EXPECT_EQ(p.text("WO No. 2 - 326-1").y, 1.5 * 1440 + 230);
    // After a blank line, the five labels with their fill-ins on the same line.
    double y = 1.5 * 1440 + 3 * 230;
    const double steps[] = {144, 144, 288, 144, 0};
    const char* labels[] = {"Start Time:", "Completion Time:", "Service Time:", "Starting Odometer:", "Ending Odometer:"};
    const char* blanks[] = {"_______:_______", "_______:_______", "_______:_______", "_______________",
                            "_______________"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(p.text(labels[i]).x, 7200) << labels[i];
        EXPECT_DOUBLE_EQ(p.text(labels[i]).y, y) << labels[i];
        y += 230 + steps[i];
    }
    int fillIns = 0;
    for (const PageOp& op : p.texts())
        if (op.x == 9360 && (op.text == blanks[0] || op.text == blanks[3])) ++fillIns;
    EXPECT_EQ(fillIns, 5);
    const PageOp anomalies = p.text("List any Anomalies prior to Commencement");
    EXPECT_EQ(anomalies.x, 720);
    EXPECT_DOUBLE_EQ(anomalies.y, 4.3 * 1440);
    int rules = 0;
    for (const PageOp& op : p.of(PageOp::Kind::Line))
        rules += op.x == 360 && op.x2 == 11880 && op.y == op.y2;
    EXPECT_EQ(rules, 16);
    // Each ruled line is a blank line and 72 twips below the text above it.
    const PageOp firstRule = p.of(PageOp::Kind::Line).front();
    EXPECT_DOUBLE_EQ(firstRule.y, 4.3 * 1440 + 230 + 230 + 72);
    EXPECT_TRUE(p.printed("List any Services not Performed and the Reason"));
    EXPECT_TRUE(p.printed("Service performed by: ______________________________________________"));
    EXPECT_TRUE(p.printed("Mr. Dale Hensley"));
    EXPECT_EQ(p.documentsEnded(), 1);
}

TEST_F(Documents, PicklistSkipsARowWhoseQuantityIsZero) {
    content.picklist = {{"2", "Furnace filter 16x25"}, {"0", "Thermocouple"}, {"12", "Wire nuts"}};
    RecordingPageSurface& p = startJob();
    PrintPicklist(printer, content);
    EXPECT_TRUE(p.printed("Furnace filter 16x25"));
    EXPECT_FALSE(p.printed("Thermocouple"));
    EXPECT_FALSE(p.printed("0"));
    // Rows begin one blank line below 4.3 in; the quantity ends at 1296 twips.
    const PageOp two = p.text("2");
    EXPECT_EQ(two.x, 1296 - 100);
    EXPECT_DOUBLE_EQ(two.y, 4.3 * 1440 + 230);
    EXPECT_EQ(p.text("Furnace filter 16x25").x, 3600);
    const PageOp twelve = p.text("12");
    EXPECT_EQ(twelve.x, 1296 - 200);
    EXPECT_DOUBLE_EQ(twelve.y, 4.3 * 1440 + 460);
}

TEST_F(Documents, PicklistHeadFrameCommentAndColumnHeads) {
    content.picklist = {{"1", "Capacitor"}};
    settings.colors.ckColor = 1;
    RecordingPageSurface& p = startJob();
    PrintPicklist(printer, content);
    const PageOp title = p.text("Picklist");
    EXPECT_EQ(title.x, 7200);
    EXPECT_EQ(title.y, 720);
    EXPECT_EQ(title.font.size, 24);
    EXPECT_EQ(p.text("For Work Order No 2 - 326-1").y, 1440);
    const PageOp from = p.text("from Prairie Comfort");
    EXPECT_EQ(from.colour, 65280u);
    EXPECT_EQ(from.font.size, 14);
    EXPECT_DOUBLE_EQ(from.y, 10.1 * 1440);
    for (auto [text, x] : {std::pair{"QTY", 864.0}, {"PICKED", 2016.0}, {"DESCRIPTION", 3600.0}}) {
        EXPECT_DOUBLE_EQ(p.text(text).x, x) << text;
        EXPECT_DOUBLE_EQ(p.text(text).y, 4.05 * 1440) << text;
    }
    EXPECT_EQ(p.text("Customer Comments:").x, 7200);
    const PageOp comment = p.text("Dog in the yard, use the side gate");
    EXPECT_EQ(comment.x, 7200);
    EXPECT_EQ(comment.y, 3600);
    EXPECT_EQ(comment.colour, 0xFF0000u);
    const auto boxes = p.of(PageOp::Kind::Box);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes[0].x, 360);
    EXPECT_EQ(boxes[0].y, 504);
    EXPECT_EQ(boxes[0].x2, 11880);
    EXPECT_EQ(boxes[0].y2, 5040);
    int verticals = 0;
    for (const PageOp& op : p.of(PageOp::Kind::Line))
        verticals += op.x == op.x2;
    EXPECT_EQ(verticals, 7);
}

TEST_F(Documents, PicklistWithoutACommentPrintsNoCommentHeading) {
    content.comment.clear();
    content.picklist = {{"1", "Capacitor"}};
    RecordingPageSurface& p = startJob();
    PrintPicklist(printer, content);
    EXPECT_FALSE(p.printed("Customer Comments:"));
}

TEST_F(Documents, ALongPicklistGoesOnOverThePageWithItsHead) {
    for (int i = 1; i <= 40; ++i)
        content.picklist.push_back({QString::number(i), QStringLiteral("Part %1").arg(i)});
    RecordingPageSurface& p = startJob();
    PrintPicklist(printer, content);
    ASSERT_EQ(p.pagesEnded(), 1);
    const auto page2 = onPage(p.ops, 2);
    EXPECT_TRUE(hasText(page2, "Picklist"));
    EXPECT_TRUE(hasText(page2, "QTY"));
    EXPECT_TRUE(hasText(page2, "Part 40"));
    for (const PageOp& op : page2)
        if (op.kind == PageOp::Kind::Text && op.text.startsWith("Part ")) {
            EXPECT_GE(op.y, 4.3 * 1440);
            EXPECT_LT(op.y, 12240);
        }
}
