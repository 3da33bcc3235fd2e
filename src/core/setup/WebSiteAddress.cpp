#include "WebSiteAddress.h"

#include "SettingsFieldReader.h"
#include "store/DiskRoutines.h"

namespace ostrel {

QString LoadWebSiteAddress(DiskRoutines& disk) {
    if (!disk.FileExists(kWebSiteFile)) return {};
    SettingsFieldReader in(disk.ReadTextFile(kWebSiteFile));
    // The file is made by hand; an empty one simply prints no line.
    return in.atEnd() ? QString() : in.readString();
}

} // namespace ostrel
