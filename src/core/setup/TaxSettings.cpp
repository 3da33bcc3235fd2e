#include "TaxSettings.h"

#include "ProgramSettings.h"
#include "SettingsFieldReader.h"
#include "store/DiskRoutines.h"

namespace ostrel {

QStringList TaxRateChoices() {
    // The comma forms serve countries that write the decimal with a comma.
    return {QStringLiteral("4.0"), QStringLiteral("5.0"), QStringLiteral("6.0"), QStringLiteral("7.0"),
            QStringLiteral("5,0"), QStringLiteral("6,0"), QStringLiteral("7,0")};
}

QStringList TaxHeadingChoices() {
    return {QStringLiteral("Sales Tax"), QStringLiteral("State Tax"),      QStringLiteral("Taxes"),
            QStringLiteral("VAT Tax"),   QStringLiteral("Provincial Tax"), QStringLiteral("Tax Surcharge"),
            QStringLiteral("GST")};
}

bool LoadTaxSettings(DiskRoutines& disk, TaxSettings& tax, ProgramSettings& program) {
    if (!disk.FileExists(kTaxSettingsFile)) {
        tax = TaxSettings{};
        return false;
    }
    SettingsFieldReader in(disk.ReadTextFile(kTaxSettingsFile));
    TaxSettings t;
    t.cboTaxHeading1 = in.readString();
    t.cboTaxHeading2 = in.readString();
    t.cboRate1 = in.readString();
    t.cboRate2 = in.readString();
    t.ckApply1stTax = in.readInteger();
    const qint16 secondTax = in.readInteger();
    tax = t;
    program.ckApply2ndTax = secondTax;
    return true;
}

void SaveTaxSettings(DiskRoutines& disk, const TaxSettings& tax, const ProgramSettings& program) {
    TextWriter out;
    out.write({tax.cboTaxHeading1, tax.cboTaxHeading2, tax.cboRate1, tax.cboRate2, qint64(tax.ckApply1stTax),
               qint64(program.ckApply2ndTax)});
    disk.ReplaceTextFile(kTaxSettingsFile, out);
}

} // namespace ostrel
