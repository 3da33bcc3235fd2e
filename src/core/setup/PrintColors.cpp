#include "PrintColors.h"

#include "SettingsFieldReader.h"
#include "store/DiskRoutines.h"

namespace ostrel {

bool LoadPrintColors(DiskRoutines& disk, PrintColors& colors) {
    if (!disk.FileExists(kPrintColorsFile)) {
        const int ckColor = colors.ckColor;
        const QString cboCopies = colors.cboCopies;
        colors = PrintColors{};
        colors.ckColor = ckColor;
        colors.cboCopies = cboCopies;
        return false;
    }
    SettingsFieldReader in(disk.ReadTextFile(kPrintColorsFile));
    PrintColors c;
    c.txtBorders = in.readLong();
    c.txtData = in.readLong();
    c.lblFont = in.readString();
    c.storedColor = in.readBoolean();
    c.storedCopies = in.readByte();
    c.ckColor = c.storedColor ? 1 : 0;
    c.cboCopies = QString::number(c.storedCopies);
    colors = c;
    return true;
}

void SavePrintColors(DiskRoutines& disk, const PrintColors& c) {
    TextWriter out;
    out.write({qint64(c.txtBorders)});
    out.write({qint64(c.txtData)});
    out.write({c.lblFont});
    out.write({c.storedColor});
    out.write({qint64(c.storedCopies)});
    disk.ReplaceTextFile(kPrintColorsFile, out);
}

} // namespace ostrel
