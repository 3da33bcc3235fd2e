#pragma once

#include <QString>

namespace ostrel {

class DiskRoutines;

// The logo the owner selected: the picture's full path, one string in "/CompanyLogo.txt". The
// picture stays where it is; nothing is copied.
struct CompanyLogo {
    QString path;
    // Whether the logo images hold the picture. A load sets it when a file is at the path; the
    // screen may clear it when the picture cannot be shown.
    bool pictureLoaded = false;
};

inline const QString kCompanyLogoFile = QStringLiteral("/CompanyLogo.txt");

// Reads the path when the file exists (true). A path that no longer leads to a file leaves the
// picture unloaded, without a message.
bool LoadCompanyLogo(DiskRoutines& disk, CompanyLogo& logo);

// Replaces the file with the path while a picture is loaded. With no picture nothing is written,
// so a cleared logo stays cleared.
void SaveCompanyLogo(DiskRoutines& disk, const CompanyLogo& logo);

// Forgets the logo: the file and its backup go, the size file stays.
void DeleteCompanyLogo(DiskRoutines& disk, CompanyLogo& logo);

} // namespace ostrel
