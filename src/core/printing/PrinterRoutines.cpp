#include "PrinterRoutines.h"

#include "platform/PrintDialogs.h"
#include "setup/SetupSettings.h"
#include "shell/Session.h"

#include <cmath>

namespace ostrel {

namespace {

constexpr double kTwipsPerInch = 1440;
constexpr Colour kBlue = 16711680;

// The whole-number twips of the wrap routine: rounded half to even, and a value outside 16 bits
// stops the print as an overflow.
qint16 wholeTwips(double value) {
    const double r = std::nearbyint(value);
    if (!(r >= -32768 && r <= 32767)) throw PrintError(PrintError::kOverflow, QStringLiteral("Overflow"));
    return static_cast<qint16>(r);
}

} // namespace

PrinterRoutines::PrinterRoutines(PrintDialogs& printDialogs, Dialogs& dialogs, DiskRoutines& disk,
                                 const SetupSettings& settings, const Clock& clock)
    : m_printDialogs(printDialogs), m_dialogs(dialogs), m_disk(disk), m_settings(settings), m_clock(clock) {}

PrinterRoutines::PrinterRoutines(Session& session, PrintDialogs& printDialogs)
    : PrinterRoutines(printDialogs, session.platform.dialogs, session.disk, session.settings,
                      session.platform.clock) {}

PageSurface& PrinterRoutines::Printer() {
    if (!m_printer) throw PrintError(PrintError::kPrinterError, QStringLiteral("No printer has been chosen"));
    return *m_printer;
}

void PrinterRoutines::ShowPrinterDialog() {
    // A job left unfinished by a failure is the platform's to drop; the next choice starts afresh.
    m_printer = nullptr;
    m_printer = &m_printDialogs.ShowPrinterDialog();
}

void PrinterRoutines::InitPrinter(const QString& orientation, int color) {
    PageSurface& p = Printer();
    p.ColorMode = color != 0 ? PageSurface::kColour : PageSurface::kMonochrome;
    p.PaperSize = PageSurface::kLetter;
    p.Orientation =
        orientation == QLatin1String("Portrait") ? PageSurface::kPortrait : PageSurface::kLandscape;
    p.SetScaleMode(PageSurface::kTwips);
    p.FontName = m_settings.colors.lblFont;
    p.ForeColor = 0;
    SetFont(0, false, false);
}

void PrinterRoutines::SetPosition(double x, double y) {
    PageSurface& p = Printer();
    if (x > 0) p.CurrentX = x * kTwipsPerInch;
    if (y > 0) p.CurrentY = y * kTwipsPerInch;
}

void PrinterRoutines::SetFont(double size, bool bold, bool underline) {
    PageSurface& p = Printer();
    if (size > 0) p.FontSize = size;
    p.FontBold = bold;
    p.FontUnderline = underline;
}

void PrinterRoutines::SetPrintColor(bool mode) {
    PageSurface& p = Printer();
    const bool colour = m_settings.colors.ckColor == 1;
    if (mode) {
        p.ForeColor = colour ? kBlue : 0;
        PaletteColor = colour ? m_settings.colors.txtData : 0;
    } else {
        p.ForeColor = colour ? static_cast<Colour>(m_settings.colors.txtBorders) : 0;
        PaletteColor = colour ? m_settings.colors.txtBorders : 0;
    }
}

void PrinterRoutines::PrintWrapped(double x, double y, double width, [[maybe_unused]] double height,
                                   const QString& text) {
    PageSurface& p = Printer();
    const qint16 left = wholeTwips(x);
    const qint16 top = wholeTwips(y);
    const int room = wholeTwips(width) - 20;
    p.CurrentY = top;
    QString rest = text;
    while (!rest.isEmpty()) {
        qsizetype lastFit = -1;
        qsizetype from = 0;
        QString line;
        for (;;) {
            const qsizetype blank = rest.indexOf(u' ', from);
            if (blank < 0) {
                // No blank left: the rest goes out whole, unmeasured.
                line = rest;
                rest.clear();
                break;
            }
            if (p.TextWidth(rest.left(blank + 1)) <= room) {
                lastFit = blank;
                from = blank + 1;
                continue;
            }
            // Too wide. A first word that alone is too wide still goes out whole, so the text
            // always moves on.
            const qsizetype cut = lastFit >= 0 ? lastFit : blank;
            line = rest.left(cut + 1);
            qsizetype next = cut + 1;
            while (next < rest.size() && rest.at(next) == u' ')
                ++next;
            rest = rest.mid(next);
            break;
        }
        p.CurrentX = left;
        p.Print(line);
    }
}

} // namespace ostrel
