#include "ShipToBlock.h"

#include "InvoiceImage.h"
#include "printing/PrinterRoutines.h"

namespace ostrel {

void PrintShipToBlock(PrinterRoutines& printer, const ShipToBlock& block, QDate today, bool usaStyle,
                      bool narrativeLayout) {
    const auto& s = block.shipTo;
    bool any = false;
    for (int i = 0; i < 5; ++i) any = any || !s[i].isEmpty();
    if (!any) return;

    PageSurface& p = printer.Printer();
    printer.SetPrintColor(true);
    printer.SetPosition(5.0, 1.95);
    p.Print(QStringLiteral("SHIPPED TO:"));
    printer.PrintWrapped(5.0 * 1440, p.CurrentY, 2520, 0, s[0]);
    printer.SetPosition(5.0, 0);
    p.Print(s[1]);
    if (!s[2].isEmpty()) {
        printer.SetPosition(5.0, 0);
        p.Print(s[2]);
    }
    printer.SetPosition(5.0, 0);
    if (usaStyle) {
        // No blank after the comma here, unlike the bill-to block.
        p.Print(s[3] + u',' + s[4] + u' ' + s[5]);
    } else {
        p.Print(s[3]);
        printer.SetPosition(5.0, 0);
        p.Print(s[5]);
    }

    if (block.shipVia != QStringLiteral("None")) {
        printer.SetPosition(0.5, narrativeLayout ? 5.3 : 4.3);
        p.PrintContinue(block.reference);
        printer.SetPosition(2.8, 0);
        p.PrintContinue(block.shipVia);
        const QDate shipped = InvoiceImage::parseDate(block.shipDate);
        if (shipped.isValid() && shipped > today) {
            printer.SetPosition(6.5, 0);
            p.Print(QStringLiteral("Sheduled - ") + block.shipDate);
        } else {
            printer.SetPosition(6.4, 0);
            p.Print(QStringLiteral("Shipped On - ") + block.shipDate);
        }
    }
    p.ForeColor = 0;
}

} // namespace ostrel
