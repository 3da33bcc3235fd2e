#include "CompanyLogo.h"

#include "SettingsFieldReader.h"
#include "store/DiskRoutines.h"

#include <QFileInfo>

namespace ostrel {

bool LoadCompanyLogo(DiskRoutines& disk, CompanyLogo& logo) {
    if (!disk.FileExists(kCompanyLogoFile)) return false;
    SettingsFieldReader in(disk.ReadTextFile(kCompanyLogoFile));
    CompanyLogo l;
    l.path = in.readString();
    // The path names a picture anywhere on the machine, not a data file.
    l.pictureLoaded = !l.path.isEmpty() && QFileInfo(l.path).isFile();
    logo = l;
    return true;
}

void SaveCompanyLogo(DiskRoutines& disk, const CompanyLogo& logo) {
    if (!logo.pictureLoaded) return;
    TextWriter out;
    out.write({logo.path});
    disk.ReplaceTextFile(kCompanyLogoFile, out);
}

void DeleteCompanyLogo(DiskRoutines& disk, CompanyLogo& logo) {
    disk.DeleteFileAndBackup(kCompanyLogoFile);
    logo.pictureLoaded = false;
}

} // namespace ostrel
