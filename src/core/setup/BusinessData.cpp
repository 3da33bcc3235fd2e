#include "BusinessData.h"

#include "SettingsFieldReader.h"
#include "store/DiskRoutines.h"

namespace ostrel {

bool LoadBusinessData(DiskRoutines& disk, BusinessData& data) {
    if (!disk.FileExists(kBusinessDataFile)) return false;
    SettingsFieldReader in(disk.ReadTextFile(kBusinessDataFile));
    BusinessData read;
    for (QString& s : read.txtBusiness)
        s = in.readString();
    data = read;
    return true;
}

void FillBusinessBoxes(const BusinessData& data, BusinessBoxes& txtBusiness) {
    for (int i = 0; i < BusinessData::kShownOnLoad; ++i)
        txtBusiness[i] = data.txtBusiness[i];
}

void SaveBusiness(DiskRoutines& disk, BusinessData& data, const BusinessBoxes& txtBusiness) {
    data.txtBusiness = txtBusiness;
    const auto& s = data.txtBusiness;
    TextWriter out;
    out.write({s[0], s[1], s[2], s[3], s[4], s[5], s[6], s[7], s[8]});
    disk.ReplaceTextFile(kBusinessDataFile, out);
}

} // namespace ostrel
