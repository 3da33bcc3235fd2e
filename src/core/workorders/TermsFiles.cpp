#include "TermsFiles.h"

#include "store/DiskRoutines.h"

namespace ostrel {

QString ReadCustomText(DiskRoutines& disk, const QString& fileName) {
    TextReader in = disk.ReadTextFile(fileName);
    return in.readString();
}

void SaveCustomText(DiskRoutines& disk, const QString& fileName, const QString& text) {
    TextWriter out;
    out.writeString(text);
    disk.ReplaceTextFile(fileName, out);
}

} // namespace ostrel
