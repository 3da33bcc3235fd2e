#include "FakePlatform.h"
#include "RecordingPageSurface.h"
#include "TestDataRoot.h"
#include "printing/ConfirmedPrint.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"
#include "store/StoreError.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::FakePlatform;
using ostrel::test::PageOp;
using ostrel::test::RecordingPageSurface;
using ostrel::test::RecordingPrintDialogs;
using ostrel::test::TestDataRoot;
using Answer = ostrel::test::RecordingPrintDialogs::Answer;

namespace {

const QString kQuestion = QStringLiteral("Was the Invoice Printed Correctly");
const QString kRetry = QStringLiteral("Would you like to Retry Printing this Invoice");

struct ConfirmedPrinting : ::testing::Test {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    RecordingPrintDialogs printDialogs;
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    int draws = 0;
    int posted = 0;
    ConfirmedPrint invoice;

    ConfirmedPrinting() {
        invoice.question = kQuestion;
        invoice.retry = kRetry;
        invoice.draw = [this] {
            ++draws;
            printer.SetPosition(1.0, 1.0);
            printer.Printer().Print(QStringLiteral("INVOICE"));
        };
        // What the invoice does after a good print: it writes to the data root.
        invoice.afterPrint = [this] {
            ++posted;
            TextWriter out;
            out.write({QStringLiteral("posted")});
            t.disk().ReplaceTextFile(QStringLiteral("/TaxRecords.txt"), out);
        };
    }
    QStringList dataRootEntries() const {
        return QDir(t.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }
};

} // namespace

TEST_F(ConfirmedPrinting, AYesToTheQuestionRunsTheAfterPrintActionOnce) {
    fake.dialogs.expect("Printing Confirmation", kQuestion, vbYesNo + vbQuestion, vbYes);
    EXPECT_EQ(PrintAndConfirm(printer, invoice), PrintResult::Printed);
    fake.dialogs.verify();
    EXPECT_EQ(printDialogs.shown(), 1);
    EXPECT_EQ(draws, 1);
    EXPECT_EQ(posted, 1);
    EXPECT_TRUE(t.isFile("/TaxRecords.txt"));
    EXPECT_EQ(printDialogs.lastJob().documentsEnded(), 1);
    EXPECT_TRUE(printDialogs.lastJob().printed("INVOICE"));
}

TEST_F(ConfirmedPrinting, TheJobIsSetUpFromTheColourBoxAndTheDocumentsOrientation) {
    settings.colors.ckColor = 0;
    invoice.orientation = "Landscape";
    fake.dialogs.expect("Printing Confirmation", kQuestion, vbYes);
    PrintAndConfirm(printer, invoice);
    const auto begins = printDialogs.lastJob().of(PageOp::Kind::Begin);
    ASSERT_EQ(begins.size(), 1);
    EXPECT_EQ(begins[0].colorMode, 1);
    EXPECT_EQ(begins[0].orientation, 2);
    EXPECT_EQ(begins[0].paperSize, 1);
    EXPECT_EQ(printDialogs.lastJob().text("INVOICE").font.name, "Arial");
}

TEST_F(ConfirmedPrinting, ADocumentThatEndsItsOwnJobIsSentOnce) {
    invoice.draw = [this] {
        printer.Printer().Print(QStringLiteral("INVOICE"));
        printer.Printer().EndDoc();
    };
    fake.dialogs.expect("Printing Confirmation", kQuestion, vbYes);
    PrintAndConfirm(printer, invoice);
    EXPECT_EQ(printDialogs.lastJob().documentsEnded(), 1);
}

TEST_F(ConfirmedPrinting, NoThenYesShowsTheDialogAgainAndPrintsAgain) {
    fake.dialogs.expect("Printing Confirmation", kQuestion, vbNo)
        .expect("Print Retry", kRetry, vbYesNo + vbQuestion, vbYes)
        .expect("Printing Confirmation", kQuestion, vbYes);
    EXPECT_EQ(PrintAndConfirm(printer, invoice), PrintResult::Printed);
    fake.dialogs.verify();
    EXPECT_EQ(printDialogs.shown(), 2);
    EXPECT_EQ(draws, 2);
    EXPECT_EQ(posted, 1);
    ASSERT_EQ(printDialogs.jobs().size(), 2u);
    EXPECT_TRUE(printDialogs.jobs()[1]->printed("INVOICE"));
}

TEST_F(ConfirmedPrinting, TheAnswerNoThenNoLeavesNoTraceOnDisk) {
    const QStringList before = dataRootEntries();
    fake.dialogs.expect("Printing Confirmation", kQuestion, vbNo).expect("Print Retry", kRetry, vbNo);
    EXPECT_EQ(PrintAndConfirm(printer, invoice), PrintResult::NotPrinted);
    fake.dialogs.verify();
    EXPECT_EQ(posted, 0);
    EXPECT_EQ(dataRootEntries(), before);
    EXPECT_FALSE(t.isFile("/TaxRecords.txt"));
    EXPECT_EQ(printDialogs.shown(), 1);
}

TEST_F(ConfirmedPrinting, CancelInTheFirstDialogSaysTheReportWillNotBePrintedAndDrawsNothing) {
    printDialogs.answer(Answer::Cancel);
    fake.dialogs.expect("", "The Report will not be Printed", vbOKOnly, vbOK);
    EXPECT_EQ(PrintAndConfirm(printer, invoice), PrintResult::Cancelled);
    fake.dialogs.verify();
    EXPECT_EQ(draws, 0);
    EXPECT_EQ(posted, 0);
    EXPECT_EQ(fake.dialogs.boxes().size(), 1);
    EXPECT_EQ(fake.dialogs.boxes()[0].title, fake.dialogs.programTitle());
}

TEST_F(ConfirmedPrinting, CancelInTheDialogOfASecondPassGivesTheCancelMessageAndEndsTheRoutine) {
    printDialogs.answer(Answer::Print).answer(Answer::Cancel);
    fake.dialogs.expect("Printing Confirmation", kQuestion, vbNo)
        .expect("Print Retry", kRetry, vbYes)
        .expect("", "The Report will not be Printed", vbOK);
    EXPECT_EQ(PrintAndConfirm(printer, invoice), PrintResult::Cancelled);
    fake.dialogs.verify();
    EXPECT_EQ(printDialogs.shown(), 2);
    EXPECT_EQ(draws, 1);
    EXPECT_EQ(posted, 0);
    EXPECT_EQ(fake.dialogs.boxes().size(), 3);
    EXPECT_FALSE(t.isFile("/TaxRecords.txt"));
}

TEST_F(ConfirmedPrinting, ADocumentThatDoesNotTellCancelApartReportsItAsAPrintError) {
    invoice.tellsCancelApart = false;
    printDialogs.answer(Answer::Cancel);
    fake.dialogs.expect("Print Error", "A Print Error has occurred", vbOKOnly, vbOK);
    EXPECT_EQ(PrintAndConfirm(printer, invoice), PrintResult::Cancelled);
    fake.dialogs.verify();
    EXPECT_EQ(draws, 0);
}

TEST_F(ConfirmedPrinting, APrinterFailureWhileDrawingReportsAPrintErrorAndSkipsTheQuestion) {
    printDialogs.failNextJobAt(1);
    fake.dialogs.expect("Print Error", "A Print Error has occurred", vbOKOnly, vbOK);
    EXPECT_EQ(PrintAndConfirm(printer, invoice), PrintResult::Failed);
    fake.dialogs.verify();
    EXPECT_EQ(posted, 0);
    EXPECT_EQ(printDialogs.lastJob().documentsEnded(), 0);
    EXPECT_EQ(fake.dialogs.boxes().size(), 1);
}

TEST_F(ConfirmedPrinting, NoPrinterAtAllIsAPrintErrorEvenForADocumentThatTellsCancelApart) {
    printDialogs.answer(Answer::NoPrinter);
    fake.dialogs.expect("Print Error", "A Print Error has occurred", vbOK);
    EXPECT_EQ(PrintAndConfirm(printer, invoice), PrintResult::Failed);
    fake.dialogs.verify();
    EXPECT_EQ(draws, 0);
}

TEST_F(ConfirmedPrinting, AFileThatCannotBeReadWhileDrawingStopsThePrintAsAPrintError) {
    invoice.draw = [this] { t.disk().ReadTextFile(QStringLiteral("/InvoiceMemo.txt")); };
    fake.dialogs.expect("Print Error", "A Print Error has occurred", vbOK);
    EXPECT_EQ(PrintAndConfirm(printer, invoice), PrintResult::Failed);
    fake.dialogs.verify();
    EXPECT_EQ(posted, 0);
}

TEST_F(ConfirmedPrinting, ADiskFailureOfTheAfterPrintActionReachesTheCaller) {
    invoice.afterPrint = [] {
        throw StoreError(QStringLiteral("/TaxRecords.txt"), QStringLiteral("cannot write"));
    };
    fake.dialogs.expect("Printing Confirmation", kQuestion, vbYes);
    EXPECT_THROW(PrintAndConfirm(printer, invoice), StoreError);
    fake.dialogs.verify();
}
