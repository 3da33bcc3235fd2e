// The day sheet of a full day printed to a PDF file through the same path as a print dialog's PDF
// choice: heading, the 48 rows with their rules, and the writing of the file.
#include "BenchPlatform.h"
#include "BenchUtil.h"
#include "platform/QtPrintDialogs.h"
#include "printing/PrinterRoutines.h"
#include "scheduling/DaySheet.h"
#include "scheduling/TimeGrid.h"
#include "setup/SetupSettings.h"
#include "store/DataRoot.h"
#include "store/DiskRoutines.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace ostrel;

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTemporaryDir dir;
    DataRoot root(dir.path());
    DiskRoutines disk(root);
    SetupSettings settings;
    settings.business.txtBusiness = {"Prairie Comfort Heating", "1207 Wabash Ave", "Suite B", "Springfield", "IL",
                                     "62704", "217-555-0142", "", ""};
    SystemClock clock;
    bench::QuietDialogs dialogs; // answers Yes to "Did the Schedule Print Correctly?"
    const QString pdf = dir.filePath(QStringLiteral("daysheet.pdf"));
    ui::QtPrintDialogs printDialogs(ui::QtPrintDialogs::PdfFileChooser(pdf));
    PrinterRoutines printer(printDialogs, dialogs, disk, settings, clock);

    Grid day;
    day.SetCols(3);
    FillTimeLabels(day);
    for (int start = 1; start <= 45; start += 4) {
        day.SetTextMatrix(start, 1, QStringLiteral("Customer Number %1").arg(start));
        day.SetTextMatrix(start, 2, QStringLiteral("Furnace Tune-up %1").arg(start));
        day.SetTextMatrix(start + 1, 1, QStringLiteral("Tel.  217-555-01%1").arg(start, 2, 10, QLatin1Char('0')));
        for (int r = start + 1; r < start + 4; ++r)
            day.SetTextMatrix(r, 2, QStringLiteral("   ------Scheduled------"));
    }
    DaySheetContent content{QStringLiteral("11/23/2026"), QStringLiteral("Service Van"), &day};

    PrintResult result = PrintResult::Failed;
    const double ms = bench::medianMs(9, [&] { result = PrintDaySheet(printer, content, settings); });
    std::printf("result %s, %lld bytes, %d boxes\n", result == PrintResult::Printed ? "printed" : "NOT printed",
                static_cast<long long>(QFileInfo(pdf).size()), dialogs.boxes);
    bench::report("day sheet of a full day to PDF", ms);
    return result == PrintResult::Printed ? 0 : 1;
}
