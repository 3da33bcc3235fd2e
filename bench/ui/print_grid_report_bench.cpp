// The invoices report of 1,000 rows printed to a PDF file through the same path as a print
// dialog's PDF choice: heading, letterhead, rows, page breaks and the writing of the file.
#include "BenchUtil.h"
#include "controls/Controls.h"
#include "platform/Browser.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/QtPrintDialogs.h"
#include "printing/GridReport.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"
#include "store/DataRoot.h"
#include "store/DiskRoutines.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace ostrel;

namespace {

constexpr int kRows = 1000;
constexpr int kRuns = 9;

class FixedClock : public Clock {
public:
    QDateTime now() const override { return QDateTime(QDate(2026, 3, 4), QTime(10, 0)); }
};

// The report asks no question; any box would be a failure worth seeing.
class FailingDialogs : public Dialogs {
public:
    QString programTitle() const override { return QStringLiteral("OstrelAppointmentScheduler"); }

protected:
    MsgBoxResult showMsgBox(const MsgBoxRequest& request) override {
        qFatal("unexpected box: %s", qPrintable(request.prompt));
    }
    void beep() override {}
    std::optional<QString> openFileName(const OpenFileRequest&) override { return std::nullopt; }
    std::optional<Colour> chooseColour(Colour, const QString&) override { return std::nullopt; }
    std::optional<FontChoice> chooseFont(const FontChoice&, const QString&) override { return std::nullopt; }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override {
        return std::nullopt;
    }
};

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
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTemporaryDir dir;
    DataRoot root(dir.path());
    DiskRoutines disk(root);
    SetupSettings settings;
    settings.business.txtBusiness = {
        "Prairie Comfort Heating", "1207 Wabash Ave", "Suite B", "Springfield", "IL", "62704", "217-555-0142",
        "Fax 217-555-0143",        "FEIN 37-1234567"};
    settings.colors.ckColor = 1;
    FixedClock clock;
    FailingDialogs dialogs;
    const QString pdf = dir.filePath(QStringLiteral("report.pdf"));
    ui::QtPrintDialogs printDialogs(ui::QtPrintDialogs::PdfFileChooser(pdf));
    PrinterRoutines printer(printDialogs, dialogs, disk, settings, clock);
    const Grid grid = invoiceGrid();

    const double ms = bench::medianMs(kRuns, [&] {
        if (PrintGridReport(printer, QStringLiteral("Invoices Report"), grid, 0) != PrintResult::Printed)
            qFatal("the report did not print");
    });
    bench::report("grid report of 1,000 rows to PDF (median)", ms);
    std::printf("%-58s %10lld bytes\n", "PDF size", static_cast<long long>(QFileInfo(pdf).size()));
    std::printf("%-58s %10s\n", "target", "300 ms");
    return 0;
}
