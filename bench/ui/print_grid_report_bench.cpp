// The invoices report of 1,000 rows printed to a PDF file through the same path as a print
// dialog's PDF choice: heading, letterhead, rows, page breaks and the writing of the file.
#include "PrintBench.h"
#include "controls/Controls.h"
#include "printing/GridReport.h"

using namespace ostrel;

namespace {

constexpr int kRows = 1000;
constexpr int kRuns = 9;

Grid invoiceGrid() {
    Grid g;
    g.SetCols(5);
    g.SetRows(kRows + 1);
    const QStringList heads = {"Invoice", "Account", "Name", "Date", "Amount"};
    for (int c = 0; c < 5; ++c)
        g.SetTextMatrix(0, c, heads[c]);
    for (int r = 1; r <= kRows; ++r) {
        g.SetTextMatrix(r, 0, QStringLiteral("%1-%2").arg(r % 365 + 1).arg(r));
        g.SetTextMatrix(r, 1, QStringLiteral("555-%1").arg(1000 + r));
        g.SetTextMatrix(r, 2, QStringLiteral("Customer Number %1").arg(r));
        g.SetTextMatrix(r, 3, QStringLiteral("%1/%2/2026").arg(r % 12 + 1).arg(r % 28 + 1));
        g.SetTextMatrix(r, 4, QStringLiteral("$%L1.%2").arg(r * 37).arg(r % 100, 2, 10, QLatin1Char('0')));
    }
    return g;
}

} // namespace

int main(int argc, char** argv) {
    bench::PrintBench world(argc, argv, QStringLiteral("report.pdf"));
    const Grid grid = invoiceGrid();

    const double ms = bench::medianMs(kRuns, [&] {
        if (PrintGridReport(world.printer, QStringLiteral("Invoices Report"), grid, 0) != PrintResult::Printed)
            qFatal("the report did not print");
    });
    world.report("grid report of 1,000 rows to PDF (median)", ms, "300 ms");
    return 0;
}
