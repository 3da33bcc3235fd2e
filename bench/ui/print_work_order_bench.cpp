// A three-page work order printed to a PDF file through the same path as a print dialog's PDF
// choice: page heads, lower part, 30 service rows and the writing of the file.
#include "BenchUtil.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/QtPrintDialogs.h"
#include "printing/PrinterRoutines.h"
#include "setup/SetupSettings.h"
#include "store/DataRoot.h"
#include "store/DiskRoutines.h"
#include "workorders/WorkOrderDocuments.h"
#include "workorders/frmTerms.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace ostrel;

namespace {

constexpr int kServices = 30; // twelve rows a page: three pages
constexpr int kRuns = 9;

class FixedClock : public Clock {
public:
    QDateTime now() const override { return QDateTime(QDate(2026, 3, 4), QTime(10, 0)); }
};

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

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTemporaryDir dir;
    DataRoot root(dir.path());
    DiskRoutines disk(root);
    SetupSettings settings;
    settings.business.txtBusiness = {"Prairie Comfort Heating", "1207 Wabash Ave", "Suite B", "Springfield", "IL",
                                     "62704", "217-555-0142", "Fax 217-555-0143", "FEIN 37-1234567"};
    settings.colors.ckColor = 1;
    FixedClock clock;
    FailingDialogs dialogs;
    const QString pdf = dir.filePath(QStringLiteral("workorder.pdf"));
    ui::QtPrintDialogs printDialogs(ui::QtPrintDialogs::PdfFileChooser(pdf));
    PrinterRoutines printer(printDialogs, dialogs, disk, settings, clock);

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
        printer.ShowPrinterDialog();
        printer.InitPrinter(QStringLiteral("Portrait"), settings.colors.ckColor);
        PrintWorkOrder(printer, content, fixed);
    });
    bench::report("work order of three pages to PDF (median)", ms);
    std::printf("%-58s %10lld bytes\n", "PDF size", static_cast<long long>(QFileInfo(pdf).size()));
    std::printf("%-58s %10s\n", "target", "150 ms");
    return 0;
}
