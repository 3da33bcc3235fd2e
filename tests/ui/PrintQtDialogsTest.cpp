#include "FakePlatform.h"
#include "TestDataRoot.h"
#include "platform/QtPrintDialogs.h"
#include "printing/ConfirmedPrint.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTimer>

#include <gtest/gtest.h>

using namespace ostrel;
using namespace ostrel::ui;
using ostrel::test::FakePlatform;
using ostrel::test::TestDataRoot;

TEST(PrintQtDialogs, TheDialogOffersNoPageNumbersButCollateAndAPdfFile) {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer);
    QtPrintDialogs::PrepareDialog(dialog);
    EXPECT_FALSE(dialog.testOption(QAbstractPrintDialog::PrintPageRange));
    EXPECT_FALSE(dialog.testOption(QAbstractPrintDialog::PrintSelection));
    EXPECT_FALSE(dialog.testOption(QAbstractPrintDialog::PrintCurrentPage));
    EXPECT_TRUE(dialog.testOption(QAbstractPrintDialog::PrintCollateCopies));
    EXPECT_TRUE(dialog.testOption(QAbstractPrintDialog::PrintToFile));
    EXPECT_EQ(dialog.printRange(), QAbstractPrintDialog::AllPages);
}

TEST(PrintQtDialogs, CancelInQtsPrintDialogSaysTheReportWillNotBePrinted) {
    TestDataRoot t;
    FakePlatform fake{t.path()};
    SetupSettings settings;
    QtPrintDialogs printDialogs;
    PrinterRoutines printer{printDialogs, fake.dialogs, t.disk(), settings, fake.clock};
    bool sawDialog = false;
    // The person presses Cancel as soon as the dialog is up.
    std::function<void()> cancelWhenShown;
    cancelWhenShown = [&] {
        if (auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
            sawDialog = true;
            dialog->reject();
            return;
        }
        QTimer::singleShot(10, cancelWhenShown);
    };
    QTimer::singleShot(0, cancelWhenShown);
    ConfirmedPrint doc;
    doc.question = "Was the Invoice Printed Correctly";
    doc.retry = "Would you like to Retry Printing this Invoice";
    bool drawn = false;
    doc.draw = [&] { drawn = true; };
    fake.dialogs.expect("", "The Report will not be Printed", vbOK);
    EXPECT_EQ(PrintAndConfirm(printer, doc), PrintResult::Cancelled);
    fake.dialogs.verify();
    EXPECT_TRUE(sawDialog);
    EXPECT_FALSE(drawn);
}
