#include "ProgramSettings.h"

#include "SettingsFieldReader.h"
#include "scheduling/WorkDays.h"
#include "store/DiskRoutines.h"

namespace ostrel {

bool ProgramSettings::optMF() const {
    return WorkWeekCode == kWorkWeekMondayToFriday;
}
bool ProgramSettings::optMS() const {
    return WorkWeekCode == kWorkWeekMondayToSaturday;
}
bool ProgramSettings::optSF() const {
    return WorkWeekCode == kWorkWeekSundayToFriday;
}
bool ProgramSettings::optSS() const {
    return WorkWeekCode == kWorkWeekEveryDay;
}

QString SettingsFileName(const QString& programName) {
    return QStringLiteral("/") + programName + QStringLiteral("Settings.txt");
}

void SetFirstRunSettings(ProgramSettings& s) {
    const qint16 secondTax = s.ckApply2ndTax;
    s = ProgramSettings{};
    s.ckApply2ndTax = secondTax;
}

bool LoadSettings(DiskRoutines& disk, const QString& programName, ProgramSettings& settings) {
    const QString name = SettingsFileName(programName);
    if (!disk.FileExists(name)) {
        SetFirstRunSettings(settings);
        SaveSettings(disk, programName, settings);
        return false;
    }
    SettingsFieldReader in(disk.ReadTextFile(name));
    ProgramSettings s;
    s.ckSalesItems = in.readInteger();
    s.ckServices = in.readInteger();
    s.ckLabor = in.readInteger();
    s.ckShipping = in.readInteger();
    s.ckMisc = in.readInteger();
    s.optPlain = in.readBoolean();
    s.optReturn = in.readBoolean();
    s.ckApply2ndTax = in.readInteger() != 0 ? 1 : 0;
    s.ckManualInvoiceNo = in.readInteger();
    s.ckApplyGraduated = in.readInteger();
    s.txtGradulated[0] = in.readString();
    s.txtGradulated[1] = in.readString();
    s.WorkWeekCode = in.readInteger();
    s.ckPrompts = in.readBoolean() ? 1 : 0;
    s.ckAlarms = in.readBoolean() ? 1 : 0;
    s.optBusinessType0 = in.readBoolean();
    // Only exactly 1 ticks these three.
    s.ckEstimate = in.readByte() == 1 ? 1 : 0;
    s.ckReturnParts = in.readByte() == 1 ? 1 : 0;
    s.ckTerms = in.readByte() == 1 ? 1 : 0;
    settings = s;
    return true;
}

void SaveSettings(DiskRoutines& disk, const QString& programName, const ProgramSettings& s) {
    TextWriter out;
    out.write({qint64(s.ckSalesItems), qint64(s.ckServices), qint64(s.ckLabor), qint64(s.ckShipping),
               qint64(s.ckMisc), s.optPlain, s.optReturn, qint64(s.ckApply2ndTax),
               qint64(s.ckManualInvoiceNo), qint64(s.ckApplyGraduated), s.txtGradulated[0],
               s.txtGradulated[1], qint64(s.WorkWeekCode), qint64(s.ckPrompts), qint64(s.ckAlarms),
               s.optBusinessType0, qint64(s.ckEstimate), qint64(s.ckReturnParts), qint64(s.ckTerms)});
    disk.ReplaceTextFile(SettingsFileName(programName), out);
}

} // namespace ostrel
