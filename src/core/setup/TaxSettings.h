#pragma once

#include <QString>
#include <QStringList>

namespace ostrel {

class DiskRoutines;
struct ProgramSettings;

// The tax settings file: six fields in one statement. The sixth, the second tax's check box, is
// one control shared with the settings file, so it lives in ProgramSettings::ckApply2ndTax; the tax
// file is read after the settings file and wins whenever it exists.
struct TaxSettings {
    QString cboTaxHeading1 = QStringLiteral("Sales Tax"); // 1 printed on invoices
    QString cboTaxHeading2 = QStringLiteral("Tax");       // 2
    QString cboRate1 = QStringLiteral("4.0");             // 3 percent, free text
    QString cboRate2 = QStringLiteral("4.0");             // 4 percent, free text
    qint16 ckApply1stTax = 0;                             // 5 check box value

    bool applyFirstTax() const { return ckApply1stTax == 1; }
};

inline const QString kTaxSettingsFile = QStringLiteral("/TaxSettings.txt");

// The suggestions of the rate and heading boxes, in their order; both boxes accept typed text.
QStringList TaxRateChoices();
QStringList TaxHeadingChoices();

// Reads the file when it exists (true), setting the second tax's box in `program` from its sixth
// field. When it is missing the headings, rates and first tax take their defaults and the second
// tax keeps what the settings file gave it (false).
bool LoadTaxSettings(DiskRoutines& disk, TaxSettings& tax, ProgramSettings& program);

// Replaces the file; the sixth field is the shared second tax box.
void SaveTaxSettings(DiskRoutines& disk, const TaxSettings& tax, const ProgramSettings& program);

} // namespace ostrel
