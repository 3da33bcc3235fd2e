#pragma once

#include <QString>

namespace ostrel {

class DiskRoutines;

inline const QString kReturnPartsFile = QStringLiteral("/ReturnPartsInstructions.txt");

// The return-parts text as the box shows it: every field of the file followed by a line end, or
// empty when the file is missing. The save writes the text as one field, so each save and load
// adds one more line end at the end of the text.
QString LoadReturnPartsInstructions(DiskRoutines& disk);

// Replaces the file with the whole text as one string, line ends inside the quotes.
void SaveReturnPartsInstructions(DiskRoutines& disk, const QString& text);

} // namespace ostrel
