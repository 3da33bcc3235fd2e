#pragma once

#include "platform/PageSurface.h"

#include <QString>

namespace ostrel {

class Clock;
class Dialogs;
class DiskRoutines;
class PrintDialogs;
class Session;
struct SetupSettings;

// The layer every printed document draws through: the print dialog, the set-up of a job, the
// position in inches, the font, the two print colours and word-wrapped text. One per session, so
// the colour last chosen (PaletteColor) lives on between documents as the work order expects.
class PrinterRoutines {
public:
    PrinterRoutines(PrintDialogs& printDialogs, Dialogs& dialogs, DiskRoutines& disk,
                    const SetupSettings& settings, const Clock& clock);
    PrinterRoutines(Session& session, PrintDialogs& printDialogs);

    // The printer chosen in the last dialog. Before any dialog there is none (PrintError).
    PageSurface& Printer();
    bool hasPrinter() const { return m_printer != nullptr; }

    // The system's print dialog; Cancel arrives as PrintError::kCancelled.
    void ShowPrinterDialog();
    // Colour when `color` is not 0; Letter; "Portrait" or else landscape; twips; the settings' font,
    // black, its size left as it is, neither bold nor underlined.
    void InitPrinter(const QString& orientation, int color);
    // Inches. 0 or less keeps that axis where it is.
    void SetPosition(double x, double y);
    // A size of 0 or less keeps the size.
    void SetFont(double size, bool bold, bool underline);
    // True: the highlight colour (blue text, the data colour for lines); false: the frame colour.
    // Both black when printing is not in colour.
    void SetPrintColor(bool mode);
    // Prints `text` from (x, y) in lines no wider than `width` - 20 twips, words kept whole. The
    // words behind the last blank are not measured, and a text without a blank prints whole.
    // A first word wider than the width prints whole on its own line and the text goes on.
    // x, y and width are whole 16-bit twips; `height` is not used.
    void PrintWrapped(double x, double y, double width, double height, const QString& text);

    // The colour SetPrintColor chose last, for the lines of the work order.
    qint32 PaletteColor = 0;

    Dialogs& dialogs() { return m_dialogs; }
    DiskRoutines& disk() { return m_disk; }
    const SetupSettings& settings() const { return m_settings; }
    const Clock& clock() const { return m_clock; }

private:
    PrintDialogs& m_printDialogs;
    Dialogs& m_dialogs;
    DiskRoutines& m_disk;
    const SetupSettings& m_settings;
    const Clock& m_clock;
    PageSurface* m_printer = nullptr;
};

} // namespace ostrel
