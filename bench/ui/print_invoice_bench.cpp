// A 100-line invoice printed to a PDF file through the same path as a print dialog's PDF choice:
// frame, letterhead, header, five pages of body, totals and the writing of the file. Target: the
// page under 200 ms.
#include "BenchUtil.h"
#include "invoicing/InvoicePage.h"
#include "platform/Browser.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/QtPrintDialogs.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"
#include "store/DataRoot.h"
#include "store/DiskRoutines.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace ostrel;

namespace {

constexpr int kLines = 100;
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
    const QString pdf = dir.filePath(QStringLiteral("invoice.pdf"));
    ui::QtPrintDialogs printDialogs(ui::QtPrintDialogs::PdfFileChooser(pdf));
    PrinterRoutines printer(printDialogs, dialogs, disk, settings, clock);
    const InvoicePageContents page = invoice();

    const double ms = bench::medianMs(kRuns, [&] {
        printer.ShowPrinterDialog();
        printer.InitPrinter(QStringLiteral("Portrait"), settings.colors.ckColor);
        PrintInvoicePage(printer, page);
    });
    bench::report("invoice of 100 lines to PDF (median)", ms);
    std::printf("%-58s %10lld bytes\n", "PDF size", static_cast<long long>(QFileInfo(pdf).size()));
    std::printf("%-58s %10s\n", "target", "200 ms");
    return 0;
}
