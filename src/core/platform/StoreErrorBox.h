#pragma once

#include <QString>

namespace ostrel {

class Dialogs;
class StoreError;

// The title of the box that reports a failure of the data store.
inline const QString kStoreErrorTitle = QStringLiteral("Data File Problem");

// Tells the user that a routine stopped on a disk failure: a critical OK box naming the file and
// the problem, after the bell when the alarm option asks for it.
void ShowStoreError(Dialogs& dialogs, const StoreError& error, bool alarms);

} // namespace ostrel
