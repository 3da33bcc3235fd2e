#pragma once

#include <QString>

namespace ostrel {

class DiskRoutines;

// Whether the four files without which the main menu cannot open all exist. They are tested in
// this order, each by the existence test (which may restore it from /Backup), stopping at the first
// one missing: "/MyBusinessData.txt", "/ServiceAreas.txt", "/TaxSettings.txt", the settings file.
bool RequiredFilesPresent(DiskRoutines& disk, const QString& programName);

} // namespace ostrel
