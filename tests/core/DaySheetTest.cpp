#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "printing/PrinterRoutines.h"
#include "scheduling/DaySheet.h"
#include "scheduling/TimeGrid.h"
#include "setup/SetupSettings.h"

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::test;

namespace {

// The recording printer measures 10 twips per point per character and 23 twips per point per line.
constexpr double kLine15 = 345;
constexpr double kLine10 = 230;

struct DaySheetPrint : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    PrinterRoutines printer{fake.printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    Grid day;
    DaySheetContent content;

    DaySheetPrint() {
        settings.business.txtBusiness = {"Prairie Comfort Heating", "1207 Wabash Ave", "Suite B", "Springfield",
                                         "IL", "62704", "217-555-0142", "", ""};
        day.SetCols(3);
        FillTimeLabels(day);
        content.date = "11/23/2026";
        content.pointOfService = "Service Van";
        content.schedule = &day;
    }

    RecordingPageSurface& printOnce() {
        fake.dialogs.expect("Confirm Print", "Did the Schedule Print Correctly?", vbYes);
        EXPECT_EQ(PrintResult::Printed, PrintDaySheet(printer, content, settings));
        fake.dialogs.verify();
        return fake.printDialogs.lastJob();
    }
};

#define EXPECT_TEXT_AT(job, text_, x_, y_)                                                                    \
    do {                                                                                                     \
        const PageOp op_ = (job).text(text_);                                                                 \
        EXPECT_DOUBLE_EQ(x_, op_.x) << (text_);                                                               \
        EXPECT_DOUBLE_EQ(y_, op_.y) << (text_);                                                               \
    } while (0)

} // namespace

TEST_F(DaySheetPrint, HeadingStandsAtItsInchesInTheBoldNamedFace) {
    RecordingPageSurface& job = printOnce();
    double y = kLine15; // the empty first line
    EXPECT_TEXT_AT(job, "APPOINTMENTS SCHEDULED FOR:", 1440, y);
    EXPECT_EQ("Ariel", job.text("APPOINTMENTS SCHEDULED FOR:").font.name);
    EXPECT_TRUE(job.text("APPOINTMENTS SCHEDULED FOR:").font.bold);
    EXPECT_EQ(15, job.text("APPOINTMENTS SCHEDULED FOR:").font.size);
    y += kLine15;
    EXPECT_TEXT_AT(job, "11/23/2026", 1440, y);
    EXPECT_TEXT_AT(job, "Prairie Comfort Heating", 7200, y);
    y += kLine15;
    EXPECT_TEXT_AT(job, "Service Van", 1440, y);
    EXPECT_EQ(15, job.text("Service Van").font.size);
    EXPECT_TEXT_AT(job, "1207 Wabash Ave", 7200, y);
    EXPECT_EQ(10, job.text("1207 Wabash Ave").font.size);
    y += kLine10;
    EXPECT_TEXT_AT(job, "Suite B", 7200, y);
    y += kLine10;
    EXPECT_TEXT_AT(job, "Springfield, IL. 62704", 7200, y);
    y += kLine10;
    EXPECT_TEXT_AT(job, "Tel No 217-555-0142", 7200, y);
    y += 2 * kLine10;
    EXPECT_TEXT_AT(job, "START", 1440, y);
    EXPECT_TEXT_AT(job, "ACCOUNT", 2880, y);
    EXPECT_TEXT_AT(job, "SERVICE", 6840, y);
    EXPECT_TEXT_AT(job, "REMARKS", 9360, y);
    y += kLine10;
    const QVector<PageOp> lines = job.of(PageOp::Kind::Line);
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_DOUBLE_EQ(1440, lines[0].x);
    EXPECT_DOUBLE_EQ(10800, lines[0].x2);
    EXPECT_DOUBLE_EQ(y, lines[0].y);
    EXPECT_DOUBLE_EQ(y, lines[0].y2);
    // The first time label follows 50 twips below the rule and ends at 1.4 inches.
    const PageOp first = job.text("6:00");
    EXPECT_DOUBLE_EQ(y + 50, first.y);
    EXPECT_DOUBLE_EQ(2016 - 4 * 100, first.x);
    EXPECT_TRUE(first.font.bold);
    EXPECT_EQ(10, first.font.size);
}

TEST_F(DaySheetPrint, AddressWithoutStateTakesTwoLines) {
    settings.cmdAddressCaption = kInternationalStyleAddress;
    settings.business.txtBusiness = {"Maple Leaf Repairs", "88 King St", "", "Toronto ON", "Canada", "M5H 1A1",
                                     "416-555-0199", "", ""};
    RecordingPageSurface& job = printOnce();
    const double y = 2 * kLine15 + kLine15;
    EXPECT_TEXT_AT(job, "88 King St", 7200, y);
    EXPECT_TEXT_AT(job, "Toronto ON", 7200, y + kLine10); // no second address line
    EXPECT_TEXT_AT(job, "M5H 1A1", 7200, y + 2 * kLine10);
    EXPECT_TEXT_AT(job, "Tel No 416-555-0199", 7200, y + 3 * kLine10);
    EXPECT_FALSE(job.printed("Canada"));
}

TEST_F(DaySheetPrint, BodyPrintsEveryRowWithRulesEveryFourthRowAndTwiceAtNoon) {
    day.SetTextMatrix(1, 1, "Ann Archer");
    day.SetTextMatrix(1, 2, "Furnace Tune-up");
    day.SetTextMatrix(2, 1, "Tel.  217-555-0100");
    day.SetTextMatrix(2, 2, "   ------Scheduled------");
    day.SetTextMatrix(9, 1, "Bob Baker");
    day.SetTextMatrix(9, 2, "Thermostat Check");
    RecordingPageSurface& job = printOnce();
    // Every label, the last ending at 1.4 inches too.
    for (int r = 1; r <= 48; ++r)
        EXPECT_TRUE(job.printed(timeLabel(r))) << r;
    const QVector<PageOp> texts = job.texts();
    int labels645 = 0;
    for (const PageOp& op : texts)
        labels645 += op.text == "6:45";
    EXPECT_EQ(2, labels645);
    // Row 1's account is not printed; the second row's, which differs, is.
    EXPECT_FALSE(job.printed("Ann Archer"));
    EXPECT_TEXT_AT(job, "Tel.  217-555-0100", 2880, job.text("6:15").y);
    EXPECT_TEXT_AT(job, "Furnace Tune-up", 6840, job.text("6:00").y);
    EXPECT_TEXT_AT(job, "Bob Baker", 2880, job.text("8:00").y);
    // One rule under the headings, twelve after every fourth row, one more after row 24.
    const QVector<PageOp> lines = job.of(PageOp::Kind::Line);
    EXPECT_EQ(1 + 12 + 1, lines.size());
    // Rows 4 and 5 are a rule apart: 230 for the line, 50, the rule, 50.
    EXPECT_DOUBLE_EQ(job.text("6:45").y + kLine10 + 100, job.text("7:00").y);
    EXPECT_DOUBLE_EQ(job.text("6:45").y + kLine10 + 50, lines[1].y);
    // After row 24 ("11:45") two rules come before "1:00".
    EXPECT_DOUBLE_EQ(job.text("11:45").y + kLine10 + 200, job.text("1:00").y);
    // The whole day is one portrait page.
    EXPECT_EQ(0, job.pagesEnded());
    EXPECT_EQ(1, job.documentsEnded());
    EXPECT_LT(lines.back().y, 15840);
}

TEST_F(DaySheetPrint, NoRedrawsTheSheetWithoutAnotherDialogUntilYes) {
    fake.dialogs.expect("Confirm Print", "Did the Schedule Print Correctly?", vbNo);
    fake.dialogs.expect("Confirm Print", "Did the Schedule Print Correctly?", vbNo);
    fake.dialogs.expect("Confirm Print", "Did the Schedule Print Correctly?", vbYes);
    EXPECT_EQ(PrintResult::Printed, PrintDaySheet(printer, content, settings));
    fake.dialogs.verify();
    EXPECT_EQ(1, fake.printDialogs.shown());
    EXPECT_EQ(3, fake.printDialogs.lastJob().documentsEnded());
    // Each sheet starts again at the top.
    int titles = 0;
    for (const PageOp& op : fake.printDialogs.lastJob().texts())
        if (op.text == "APPOINTMENTS SCHEDULED FOR:") {
            EXPECT_DOUBLE_EQ(kLine15, op.y);
            ++titles;
        }
    EXPECT_EQ(3, titles);
}

TEST_F(DaySheetPrint, CancelInTheDialogSaysTheReportWillNotBePrinted) {
    fake.printDialogs.answer(RecordingPrintDialogs::Answer::Cancel);
    fake.dialogs.expect("", "The Report will not be Printed");
    EXPECT_EQ(PrintResult::Cancelled, PrintDaySheet(printer, content, settings));
    fake.dialogs.verify();
}

TEST_F(DaySheetPrint, PrinterFailureIsAPrintErrorAndNoQuestionIsAsked) {
    fake.printDialogs.failNextJobAt(5);
    fake.dialogs.expect("Print Error", "A Print Error has occurred");
    EXPECT_EQ(PrintResult::Failed, PrintDaySheet(printer, content, settings));
    fake.dialogs.verify();
}
