#pragma once

#include <QString>

namespace ostrel {

class DiskRoutines;

// The print look: five statements of one field each. Fields 4 and 5 are written back as they were
// loaded at start-up, never from the two controls, which act for the current run only.
struct PrintColors {
    qint32 txtBorders = 0;                     // 1 Long: colour of frames and borders, 24 bits, red low
    qint32 txtData = 0;                        // 2 Long: colour of printed text
    QString lblFont = QStringLiteral("Arial"); // 3 the printing font's name; its size is not kept
    bool storedColor = true;                   // 4 Boolean, as loaded
    quint8 storedCopies = 3;                   // 5 Byte, as loaded

    // The controls. Nothing loads them on a first run, so "Print" starts unticked there.
    int ckColor = 0;
    QString cboCopies;

    // Printing follows the control, not the stored field.
    bool printInColour() const { return ckColor == 1; }
};

inline const QString kPrintColorsFile = QStringLiteral("/PrintColors.txt");

// Reads the five fields when the file exists (true) and sets the two controls from fields 4 and 5.
// When it is missing the fields take their defaults and the controls are left alone (false).
bool LoadPrintColors(DiskRoutines& disk, PrintColors& colors);

// Replaces the file: colours and font as they are now, fields 4 and 5 as loaded.
void SavePrintColors(DiskRoutines& disk, const PrintColors& colors);

} // namespace ostrel
