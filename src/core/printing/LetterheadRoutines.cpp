#include "LetterheadRoutines.h"

#include "PrinterRoutines.h"
#include "setup/SetupSettings.h"
#include "setup/WebSiteAddress.h"
#include "store/DiskRoutines.h"

namespace ostrel {

namespace {

// The longest company name that still prints at the letterhead's own size.
constexpr int kLongestFullSizeName = 25;

// Each line of a block starts at the block's left edge, below the one before.
void printLine(PrinterRoutines& printer, double x, const QString& text) {
    printer.SetPosition(x, 0);
    printer.Printer().Print(text);
}

} // namespace

void PrintLetterhead(PrinterRoutines& printer, double x, double y, double size) {
    const BusinessData& b = printer.settings().business;
    printer.SetPosition(x, y);
    printer.SetFont(size, true, false);
    if (b.companyName().size() > kLongestFullSizeName) printer.SetFont(10, true, false);
    printLine(printer, x, b.companyName());

    printer.SetFont(10, false, false);
    printLine(printer, x, b.address1());
    if (!b.address2().isEmpty()) printLine(printer, x, b.address2());

    if (printer.settings().cmdAddressCaption == kUsaStyleAddress) {
        QString line;
        if (!b.city().isEmpty()) line += b.city() + QStringLiteral(", ");
        if (!b.state().isEmpty()) line += b.state() + QStringLiteral(". ") + b.postalCode();
        if (!line.isEmpty()) printLine(printer, x, line);
    } else {
        if (!b.city().isEmpty()) printLine(printer, x, b.city());
        if (!b.state().isEmpty()) printLine(printer, x, b.state());
    }

    if (!b.telephone().isEmpty()) printLine(printer, x, QStringLiteral("Telephone: ") + b.telephone());
    if (!b.furtherInfo().isEmpty()) printLine(printer, x, b.furtherInfo());
    if (!b.taxRegistration().isEmpty()) printLine(printer, x, b.taxRegistration());

    DiskRoutines& disk = printer.disk();
    if (disk.FileExists(kWebSiteFile)) printLine(printer, x, LoadWebSiteAddress(disk));
}

void PrintTitle(PrinterRoutines& printer, const QString& text, double y, double size) {
    printer.SetFont(size, true, false);
    printer.SetPrintColor(true);
    printer.SetPosition(5.0, y);
    PageSurface& p = printer.Printer();
    printer.PrintWrapped(p.CurrentX, p.CurrentY, 2880, 0, text);
    printer.SetFont(10, true, false);
}

void PrintLogo(PrinterRoutines& printer, double y) {
    const SetupSettings& s = printer.settings();
    if (!s.logo.pictureLoaded) return;
    PageSurface& p = printer.Printer();
    const auto own = p.PictureSize(s.logo.path);
    if (!own) return;
    p.PaintPicture(s.logo.path, (p.ScaleWidth() - own->width()) / 2, y, s.logoSize.width, s.logoSize.height);
}

void PrintAddressBlock(PrinterRoutines& printer, const QString& name, const QString& line2,
                       const QString& line3, const QString& city, const QString& state, const QString& zip,
                       double y, bool usaStyle) {
    PageSurface& p = printer.Printer();
    p.ForeColor = 0;
    printer.SetPosition(1.0, y);
    printLine(printer, 1.0, name);
    printLine(printer, 1.0, line2);
    if (!line3.isEmpty()) printLine(printer, 1.0, line3);
    if (usaStyle) {
        printLine(printer, 1.0, city + QStringLiteral(", ") + state + QStringLiteral(" ") + zip);
    } else {
        printLine(printer, 1.0, city);
        printLine(printer, 1.0, zip);
    }
    p.ForeColor = 0;
}

} // namespace ostrel
