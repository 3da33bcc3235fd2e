#pragma once

#include <QStringList>

namespace ostrel {

class DiskRoutines;

// The installed list of state codes, /StatesList.txt: exactly 50 fields in display order. No file
// gives an empty list; a file of fewer than 50 fields stops with a StoreError naming it.
QStringList ReadStatesList(DiskRoutines& disk);

} // namespace ostrel
