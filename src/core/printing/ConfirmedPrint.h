#pragma once

#include "PrintFailure.h"

#include <QString>

#include <functional>

namespace ostrel {

class PrinterRoutines;

inline const QString kPrintConfirmationTitle = QStringLiteral("Printing Confirmation");
inline const QString kPrintRetryTitle = QStringLiteral("Print Retry");

// One document as the confirmed print runs it, with its own texts.
struct ConfirmedPrint {
    QString orientation = QStringLiteral("Portrait");
    // "Was the Invoice Printed Correctly"
    QString question;
    // "Would you like to Retry Printing this Invoice"
    QString retry;
    // The invoice, the reports and the work schedule tell a cancelled dialog apart; the work order,
    // the pick list and the reprint report Cancel as a print error.
    bool tellsCancelApart = true;
    // Most documents ask under the common titles and report Cancel in the common words; the pick
    // list has its own.
    QString questionTitle = kPrintConfirmationTitle;
    QString retryTitle = kPrintRetryTitle;
    QString cancelledMessage = kPrintCancelledMessage;
    // Draws the document. An EndDoc at its end is allowed; the job is ended after it in any case.
    std::function<void()> draw;
    // Runs once the user has not said No to the question; nothing on disk changes before it.
    std::function<void()> afterPrint;
};

// The print dialog, the job, the question and the retry, until the user confirms or gives up. A
// cancelled dialog or a failure shows its message and ends the routine at once. A disk failure of
// the after-print action is not a print failure: it reaches the caller.
PrintResult PrintAndConfirm(PrinterRoutines& printer, const ConfirmedPrint& document);

} // namespace ostrel
