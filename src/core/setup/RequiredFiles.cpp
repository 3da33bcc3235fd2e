#include "RequiredFiles.h"

#include "ProgramSettings.h"
#include "store/DiskRoutines.h"

namespace ostrel {

bool RequiredFilesPresent(DiskRoutines& disk, const QString& programName) {
    return disk.FileExists(QStringLiteral("/MyBusinessData.txt")) &&
           disk.FileExists(QStringLiteral("/ServiceAreas.txt")) &&
           disk.FileExists(QStringLiteral("/TaxSettings.txt")) &&
           disk.FileExists(SettingsFileName(programName));
}

} // namespace ostrel
