#pragma once

#include <QString>

namespace ostrel {

class DiskRoutines;

inline const QString kCustomTermsFile = QStringLiteral("/CustomTerms.txt");
inline const QString kCustomDisclaimerFile = QStringLiteral("/CustomDisclaimer.txt");

// A custom text is one quoted string holding the whole text, its line ends (CR LF, as the edit box
// holds them) inside the quotes.
QString ReadCustomText(DiskRoutines& disk, const QString& fileName);
// Replaces the file and drops its backup copy: no older text is kept.
void SaveCustomText(DiskRoutines& disk, const QString& fileName, const QString& text);

} // namespace ostrel
