#pragma once

#include <QString>

#include <array>

namespace ostrel {

class DiskRoutines;

// The global option set, one statement of nineteen fields in the settings file. Each member is
// named after the control of the Setup screen that shows it; check box members hold the value the
// control holds (0 unticked, 1 ticked, 2 grayed). The member initialisers are the first-run values.
struct ProgramSettings {
    // A graduated amount of zero, in the currency form the boxes show.
    static inline const QString kZeroCurrency = QStringLiteral("$0.00");

    qint16 ckSalesItems = 1;      // 1  Integer
    qint16 ckServices = 0;        // 2  Integer
    qint16 ckLabor = 0;           // 3  Integer
    qint16 ckShipping = 0;        // 4  Integer, kept and shown only
    qint16 ckMisc = 0;            // 5  Integer, kept and shown only
    bool optPlain = true;         // 6  Boolean
    bool optReturn = false;       // 7  Boolean
    qint16 ckApply2ndTax = 0;     // 8  Integer; the tax file carries it too and wins when present
    qint16 ckManualInvoiceNo = 0; // 9  Integer, kept and shown only
    qint16 ckApplyGraduated = 0;  // 10 Integer
    std::array<QString, 2> txtGradulated{kZeroCurrency, kZeroCurrency}; // 11, 12 money text as typed
    qint16 WorkWeekCode = 5;                                            // 13 Integer
    qint16 ckPrompts = 1;         // 14 written as 0/1, read as a Boolean
    qint16 ckAlarms = 1;          // 15 written as 0/1, read as a Boolean
    bool optBusinessType0 = true; // 16 Boolean: Shop/Repair; optBusinessType(1) is its opposite
    quint8 ckEstimate = 1;        // 17 Byte, kept and shown only
    quint8 ckReturnParts = 1;     // 18 Byte; the work order screen's ckInstructions follows it
    quint8 ckTerms = 1;           // 19 Byte, kept and shown only

    bool taxSalesItems() const { return ckSalesItems == 1; }
    bool taxServices() const { return ckServices == 1; }
    bool taxLabor() const { return ckLabor == 1; }
    bool shipping() const { return ckShipping == 1; }
    bool misc() const { return ckMisc == 1; }
    bool applySecondTax() const { return ckApply2ndTax == 1; }
    bool manualInvoiceNo() const { return ckManualInvoiceNo == 1; }
    bool applyGraduated() const { return ckApplyGraduated == 1; }
    bool prompts() const { return ckPrompts != 0; }
    bool alarms() const { return ckAlarms != 0; }
    bool printEstimate() const { return ckEstimate == 1; }
    bool printReturnParts() const { return ckReturnParts == 1; }
    bool printTerms() const { return ckTerms == 1; }

    // BusinessStyle: true is Shop/Repair, false Associate Sales.
    bool optBusinessType(int index) const { return index == 0 ? optBusinessType0 : !optBusinessType0; }
    bool isShopRepair() const { return optBusinessType0; }
    // The sales report entry of the main menu is offered in Associate Sales style only.
    bool salesReportAvailable() const { return !optBusinessType0; }

    // The work week options: exactly one is ticked for a known code, none for any other.
    bool optMF() const;
    bool optMS() const;
    bool optSF() const;
    bool optSS() const;
};

// "/<programName>Settings.txt": the executable's base name picks the file, so a renamed
// executable starts from the first-run values.
QString SettingsFileName(const QString& programName);

// Reads the settings when the file exists (true). When it is missing, sets the first-run values
// and writes the file at once (false). A file cut short, or a value its field cannot hold, changes
// nothing and throws StoreError.
bool LoadSettings(DiskRoutines& disk, const QString& programName, ProgramSettings& settings);

// Replaces the file with the one statement.
void SaveSettings(DiskRoutines& disk, const QString& programName, const ProgramSettings& settings);

// Sets the first-run values. ckApply2ndTax is not among them and keeps what it holds.
void SetFirstRunSettings(ProgramSettings& settings);

} // namespace ostrel
