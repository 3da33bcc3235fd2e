#include "LogoSettings.h"

#include "SettingsFieldReader.h"
#include "store/DiskRoutines.h"

#include <cstdio>
#include <cstdlib>

namespace ostrel {

namespace {
// A single-precision value written as its shortest decimal form (at most 7 digits), so 0.1f is
// written ".1", not the digits of the double it widens to.
double singleForWriting(float v) {
    char buf[32];
    for (int precision = 1; precision <= 9; ++precision) {
        std::snprintf(buf, sizeof buf, "%.*g", precision, static_cast<double>(v));
        if (std::strtof(buf, nullptr) == v) break;
    }
    return std::strtod(buf, nullptr);
}
} // namespace

bool LoadLogoSettings(DiskRoutines& disk, LogoSettings& size, bool pictureLoaded) {
    if (!disk.FileExists(kLogoSettingsFile)) {
        size = LogoSettings{};
        SaveLogoSettings(disk, size, pictureLoaded);
        return false;
    }
    SettingsFieldReader in(disk.ReadTextFile(kLogoSettingsFile));
    LogoSettings s;
    s.width = in.readSingle();
    s.height = in.readSingle();
    size = s;
    return true;
}

void SaveLogoSettings(DiskRoutines& disk, const LogoSettings& size, bool pictureLoaded) {
    if (!pictureLoaded) return;
    TextWriter out;
    out.write({singleForWriting(size.width), singleForWriting(size.height)});
    disk.ReplaceTextFile(kLogoSettingsFile, out);
}

} // namespace ostrel
