#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

namespace ostrel {

class DiskRoutines;

// Makes the fixed folders of the data tree, this year's folder and every customer's AuxFiles tree.
// Customers whose account number cannot name a folder are passed over; the returned texts say which,
// so start-up can tell the user once instead of stopping.
// Removes what interrupted saves left beside the files they were replacing ("Services.txt.uxrUim").
void RemoveLeftoverTemporaries(DiskRoutines& disk);

QStringList PrepareDataDirectories(DiskRoutines& disk, QDate today, const QString& programName);

} // namespace ostrel
