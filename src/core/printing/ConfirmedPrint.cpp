#include "ConfirmedPrint.h"

#include "PrinterRoutines.h"
#include "platform/Dialogs.h"
#include "setup/SetupSettings.h"

namespace ostrel {

namespace {

// One pass: dialog, set-up, drawing, end of the job. The error number of a failure, or 0.
int printOnce(PrinterRoutines& printer, const ConfirmedPrint& document) {
    try {
        printer.ShowPrinterDialog();
        printer.InitPrinter(document.orientation, printer.settings().colors.ckColor);
        if (document.draw) document.draw();
        printer.Printer().EndDoc();
        return 0;
    } catch (const PrintError& e) {
        return e.number();
    } catch (const std::exception&) {
        // Whatever stops the drawing stops the print the same way.
        return PrintError::kPrinterError;
    }
}

} // namespace

PrintResult PrintAndConfirm(PrinterRoutines& printer, const ConfirmedPrint& document) {
    Dialogs& dialogs = printer.dialogs();
    for (;;) {
        if (const int error = printOnce(printer, document))
            return ReportPrintFailure(dialogs, error, document.tellsCancelApart, document.cancelledMessage);
        if (dialogs.MsgBox(document.question, vbYesNo + vbQuestion, document.questionTitle) != vbNo) {
            if (document.afterPrint) document.afterPrint();
            return PrintResult::Printed;
        }
        if (dialogs.MsgBox(document.retry, vbYesNo + vbQuestion, document.retryTitle) != vbYes)
            return PrintResult::NotPrinted;
    }
}

} // namespace ostrel
