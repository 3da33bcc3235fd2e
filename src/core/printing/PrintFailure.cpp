#include "PrintFailure.h"

#include "platform/Dialogs.h"
#include "platform/PageSurface.h"

namespace ostrel {

PrintResult ReportPrintFailure(Dialogs& dialogs, int errorNumber, bool tellsCancelApart,
                               const QString& cancelledMessage) {
    const bool cancelled = errorNumber == PrintError::kCancelled;
    if (cancelled && tellsCancelApart)
        dialogs.MsgBox(cancelledMessage, vbOKOnly);
    else
        dialogs.MsgBox(kPrintErrorMessage, vbOKOnly, kPrintErrorTitle);
    return cancelled ? PrintResult::Cancelled : PrintResult::Failed;
}

} // namespace ostrel
