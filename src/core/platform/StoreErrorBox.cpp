#include "StoreErrorBox.h"

#include "Dialogs.h"
#include "store/StoreError.h"

namespace ostrel {

void ShowStoreError(Dialogs& dialogs, const StoreError& error, bool alarms) {
    if (alarms) dialogs.Beep();
    dialogs.MsgBox(error.userMessage(), vbOKOnly + vbCritical, kStoreErrorTitle);
}

} // namespace ostrel
