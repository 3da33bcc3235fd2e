#pragma once

#include "AddressStyle.h"
#include "BusinessData.h"
#include "CompanyLogo.h"
#include "LogoSettings.h"
#include "PhoneSettings.h"
#include "PrintColors.h"
#include "ProgramSettings.h"
#include "TaxSettings.h"

#include <QString>

namespace ostrel {

class DiskRoutines;

// Everything the Setup screen edits, held once for the whole session and read by every screen.
struct SetupSettings {
    BusinessData business;
    ProgramSettings program;
    TaxSettings tax;
    PrintColors colors;
    CompanyLogo logo;
    LogoSettings logoSize;
    PhoneSettings phone;
    QString txtReturnParts;
    // The address style, as the caption of cmdAddress shows it.
    QString cmdAddressCaption = kUsaStyleAddress;

    bool isUsaStyle() const { return IsUsaStyle(cmdAddressCaption); }
};

// The start-up load, in its order: business data; settings (a first run writes the settings file
// at once), then the return-parts text in Shop/Repair style; the logo path; the logo size; the
// address style decision; print colours; tax settings, whose second tax box overrides the settings
// file's. The phone files follow the modem probe and are loaded by its owner (LoadPhoneFiles).
void LoadSetupSettings(DiskRoutines& disk, const QString& programName, SetupSettings& settings);

// The saves of leaving Setup, in their order: business data (from the nine boxes), tax settings,
// settings, print colours, phone files, logo path, logo size. The caller has checked that company
// name and telephone are filled in.
void SaveSetupSettings(DiskRoutines& disk, const QString& programName, SetupSettings& settings,
                       const BusinessBoxes& txtBusiness, bool ckPhoneTicked);

} // namespace ostrel
