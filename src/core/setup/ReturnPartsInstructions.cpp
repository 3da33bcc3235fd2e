#include "ReturnPartsInstructions.h"

#include "SettingsFieldReader.h"
#include "store/DiskRoutines.h"

namespace ostrel {

QString LoadReturnPartsInstructions(DiskRoutines& disk) {
    QString text;
    if (!disk.FileExists(kReturnPartsFile)) return text;
    SettingsFieldReader in(disk.ReadTextFile(kReturnPartsFile));
    while (!in.atEnd())
        text += in.readString() + QStringLiteral("\r\n");
    return text;
}

void SaveReturnPartsInstructions(DiskRoutines& disk, const QString& text) {
    TextWriter out;
    out.write({text});
    disk.ReplaceTextFile(kReturnPartsFile, out);
}

} // namespace ostrel
