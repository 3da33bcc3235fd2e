#include "SetupSettings.h"

#include "ReturnPartsInstructions.h"
#include "store/DiskRoutines.h"

namespace ostrel {

void LoadSetupSettings(DiskRoutines& disk, const QString& programName, SetupSettings& s) {
    LoadBusinessData(disk, s.business);
    LoadSettings(disk, programName, s.program);
    if (s.program.isShopRepair()) s.txtReturnParts = LoadReturnPartsInstructions(disk);
    LoadCompanyLogo(disk, s.logo);
    LoadLogoSettings(disk, s.logoSize, s.logo.pictureLoaded);
    s.cmdAddressCaption = DecideAddressStyle(s.business, s.cmdAddressCaption);
    LoadPrintColors(disk, s.colors);
    LoadTaxSettings(disk, s.tax, s.program);
}

void SaveSetupSettings(DiskRoutines& disk, const QString& programName, SetupSettings& s,
                       const BusinessBoxes& txtBusiness, bool ckPhoneTicked) {
    SaveBusiness(disk, s.business, txtBusiness);
    SaveTaxSettings(disk, s.tax, s.program);
    SaveSettings(disk, programName, s.program);
    SavePrintColors(disk, s.colors);
    SavePhoneFiles(disk, s.phone, ckPhoneTicked);
    SaveCompanyLogo(disk, s.logo);
    SaveLogoSettings(disk, s.logoSize, s.logo.pictureLoaded);
}

} // namespace ostrel
