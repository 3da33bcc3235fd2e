#include "PhoneSettings.h"

#include "SettingsFieldReader.h"
#include "store/DiskRoutines.h"

namespace ostrel {

void LoadPhoneFiles(DiskRoutines& disk, PhoneSettings& phone) {
    PhoneSettings p = phone;
    if (!disk.FileExists(kPhoneFile)) {
        p.PhoneChained = false;
    } else {
        SettingsFieldReader in(disk.ReadTextFile(kPhoneFile));
        p.PhoneChained = in.readBoolean();
        p.ModemPort = in.readInteger();
    }
    if (disk.FileExists(kCallIdFile)) {
        SettingsFieldReader in(disk.ReadTextFile(kCallIdFile));
        p.CallerIdOn = in.readBoolean();
    }
    phone = p;
}

void SavePhoneFiles(DiskRoutines& disk, PhoneSettings& phone, bool ckPhoneTicked) {
    if (ckPhoneTicked) phone.PhoneChained = true;
    TextWriter out;
    out.write({phone.PhoneChained});
    out.write({qint64(phone.ModemPort)});
    disk.ReplaceTextFile(kPhoneFile, out);
    TextWriter callId;
    callId.write({phone.CallerIdOn});
    disk.ReplaceTextFile(kCallIdFile, callId);
}

} // namespace ostrel
