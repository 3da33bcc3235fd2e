// A three-page work order printed to a PDF file through the same path as a print dialog's PDF
// choice: page heads, lower part, 30 service rows and the writing of the file.
#include "PrintBench.h"
#include "workorders/WorkOrderDocuments.h"
#include "workorders/frmTerms.h"

using namespace ostrel;

namespace {

constexpr int kServices = 30; // twelve rows a page: three pages
constexpr int kRuns = 9;

} // namespace

int main(int argc, char** argv) {
    bench::PrintBench world(argc, argv, QStringLiteral("workorder.pdf"));

    WorkOrderContent content;
    content.number = "2 - 63-4";
    content.date = "3/4/2026";
    content.account = "2175550199";
    content.customer = {"Mr. Dale Hensley", "88 Orchard Ln", "", "Chatham", "IL", "62629"};
    for (int i = 1; i <= kServices; ++i)
        content.services.push_back({QStringLiteral("Service number %1").arg(i), "1:15", "$45.00"});
    WorkOrderFixedPart fixed;
    fixed.disclaimer = kGenericDisclaimer;
    fixed.terms = kGenericTerms;

    const double ms = bench::medianMs(kRuns, [&] {
        world.printer.ShowPrinterDialog();
        world.printer.InitPrinter(QStringLiteral("Portrait"), world.settings.colors.ckColor);
        PrintWorkOrder(world.printer, content, fixed);
    });
    world.report("work order of three pages to PDF (median)", ms, "150 ms");
    return 0;
}
