#pragma once

#include <QString>

namespace ostrel {

class Dialogs;

// How a print routine ended.
enum class PrintResult {
    Printed,    // drawn and sent; for a confirmed print, confirmed and the after-print action done
    NotPrinted, // the user said it did not come out right and chose not to retry
    Cancelled,  // the print dialog was cancelled
    Failed,     // the printer or the drawing failed
};

inline const QString kPrintCancelledMessage = QStringLiteral("The Report will not be Printed");
inline const QString kPrintErrorMessage = QStringLiteral("A Print Error has occurred");
inline const QString kPrintErrorTitle = QStringLiteral("Print Error");

// The error path of the print routines. Routines that tell Cancel apart say that nothing will be
// printed; the others, and every other failure, report a print error.
// A document may name itself in the Cancel message ("The Picklist will not be Printed").
PrintResult ReportPrintFailure(Dialogs& dialogs, int errorNumber, bool tellsCancelApart,
                               const QString& cancelledMessage = kPrintCancelledMessage);

} // namespace ostrel
