#pragma once

#include <QString>

#include <array>

namespace ostrel {

class DiskRoutines;

// The owner's business identity: nine strings, index i standing for the box txtBusiness(i).
struct BusinessData {
    static constexpr int kCount = 9;
    // A load shows strings 1 to 8 only; the ninth is read but its box is left as it was.
    static constexpr int kShownOnLoad = 8;

    std::array<QString, kCount> txtBusiness;

    const QString& companyName() const { return txtBusiness[0]; }
    const QString& address1() const { return txtBusiness[1]; }
    const QString& address2() const { return txtBusiness[2]; }
    const QString& city() const { return txtBusiness[3]; }       // "Address 3" in International style
    const QString& state() const { return txtBusiness[4]; }      // "Address 4" in International style
    const QString& postalCode() const { return txtBusiness[5]; } // empty in International style
    const QString& telephone() const { return txtBusiness[6]; }
    const QString& furtherInfo() const { return txtBusiness[7]; } // fax, e-mail or web
    const QString& taxRegistration() const { return txtBusiness[8]; }
};

using BusinessBoxes = std::array<QString, BusinessData::kCount>;

inline const QString kBusinessDataFile = QStringLiteral("\\MyBusinessData.txt");

// Reads the nine strings when the file exists (true); otherwise leaves `data` as it is (false).
// A file cut short changes nothing and throws StoreError.
bool LoadBusinessData(DiskRoutines& disk, BusinessData& data);

// Puts strings 1 to 8 into the boxes; the ninth box keeps what it holds, so a later save writes
// whatever was typed there during this run, or nothing.
void FillBusinessBoxes(const BusinessData& data, BusinessBoxes& txtBusiness);

// Copies all nine boxes into `data` and writes the file.
void SaveBusiness(DiskRoutines& disk, BusinessData& data, const BusinessBoxes& txtBusiness);

} // namespace ostrel
