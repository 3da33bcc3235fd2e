// A 100-line invoice printed to a PDF file through the same path as a print dialog's PDF choice:
// frame, letterhead, header, five pages of body, totals and the writing of the file. Target: the
// page under 200 ms.
#include "PrintBench.h"
#include "invoicing/InvoicePage.h"

using namespace ostrel;

namespace {

constexpr int kLines = 100;
constexpr int kRuns = 9;

InvoicePageContents invoice() {
    InvoicePageContents page;
    page.invoiceNo = "20260007";
    page.account = "2175550199";
    page.date = "11/22/2026";
    page.reference = "Prepared 11/22/2026";
    page.billTo = {"Dana Whitfield", "88 Elm St", "", "Decatur", "IL", "62521"};
    for (int i = 1; i <= kLines; ++i)
        page.lines.push_back({QString::number(i % 5 + 1), QStringLiteral("Replacement part number %1 fitted").arg(i),
                              "11/20/2026", "$12.50", QStringLiteral("$%1.50").arg(12 * (i % 5 + 1)), "True"});
    page.subTotal = "$3,750.00";
    page.tax = "$309.38";
    page.tax2 = "$0.00";
    page.total = "$4,059.38";
    page.handling = "$0.00";
    page.taxHeading1 = "Sales Tax";
    page.taxHeading2 = "Tax";
    return page;
}

} // namespace

int main(int argc, char** argv) {
    bench::PrintBench world(argc, argv, QStringLiteral("invoice.pdf"));
    const InvoicePageContents page = invoice();

    const double ms = bench::medianMs(kRuns, [&] {
        world.printer.ShowPrinterDialog();
        world.printer.InitPrinter(QStringLiteral("Portrait"), world.settings.colors.ckColor);
        PrintInvoicePage(world.printer, page);
    });
    world.report("invoice of 100 lines to PDF (median)", ms, "200 ms");
    return 0;
}
