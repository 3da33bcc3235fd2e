// The completed invoices and the sales journal at a busy shop's size: the reprint list over 10,000
// images, the sales report loaded over 50,000 journal records, and a range deleted from that
// journal. Each median is printed beside a bare read of the same bytes. Targets: the list within
// 2 times its bare read and under 1 s; the load within 3 times its bare read and under 200 ms; the
// delete under 500 ms.
#include "BenchPlatform.h"
#include "BenchUtil.h"
#include "invoicing/AssociateJournal.h"
#include "invoicing/InvoiceImage.h"
#include "invoicing/frmReprint.h"
#include "printing/frmSales.h"
#include "shell/Session.h"
#include "shell/frmStartup.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

using namespace ostrel;

namespace {

constexpr int kImages = 10000;
constexpr int kJournalRecords = 50000;
constexpr int kRuns = 7;

void generateImages(DiskRoutines& disk) {
    disk.MakeDirectoryIfAbsent(QStringLiteral("/CompletedInvoices"));
    for (int i = 0; i < kImages; ++i) {
        PostedInvoice in;
        const QDate date = QDate(2020, 1, 1).addDays(i % 2400);
        in.invoiceNo = QString::number(20200000 + i);
        in.accountNo = QString::number(10000 + i % 900);
        in.customer = {QStringLiteral("Customer %1").arg(i % 900), QStringLiteral("%1 Main St").arg(i % 500), "",
                       QStringLiteral("Springfield"), QStringLiteral("IL"), QStringLiteral("62701")};
        in.dateText = date.toString(u"M/d/yyyy");
        in.reference = QStringLiteral("Job %1").arg(i);
        for (int l = 0; l < 6; ++l)
            in.lines.append({QString::number(l + 1), QStringLiteral("Service line %1").arg(l), in.dateText,
                             QStringLiteral("$45.00"), QStringLiteral("$%1.00").arg(45 * (l + 1)),
                             QStringLiteral("False")});
        in.total = QStringLiteral("$945.00");
        in.tax = QStringLiteral("$37.80");
        in.grandTotal = QStringLiteral("$982.80");
        WriteInvoiceImage(disk, MakeInvoiceImage(in));
    }
}

QByteArray journalBytes() {
    QByteArray out;
    out.reserve(qsizetype(kJournalRecords) * AssociateJournalRecord::kLength);
    const char* const crews[] = {"Crew One", "Crew Two", "Crew Three", "Crew Four"};
    for (int i = 0; i < kJournalRecords; ++i) {
        AssociateJournalRecord r;
        r.Transaction = QStringLiteral("Customer %1").arg(i % 900);
        r.Account = QString::number(20200000 + i);
        r.JournalDate = QDate(2020, 1, 1).addDays(i % 2500);
        r.Associate = QString::fromLatin1(crews[i % 4]);
        r.SubTotal = Money::fromTenThousandths(100000 + i);
        r.Tax = Money::fromTenThousandths(4000);
        r.Gross = r.SubTotal + r.Tax;
        out += r.toRecord().bytes();
    }
    return out;
}

// Every image's bytes read whole, as the list's floor.
double bareImageRead(const QString& folder) {
    return bench::medianMs(kRuns, [&] {
        qint64 total = 0;
        for (const QString& n : QDir(folder).entryList(QDir::Files)) {
            QFile f(folder + u'/' + n);
            if (f.open(QIODevice::ReadOnly)) total += f.readAll().size();
        }
        if (total == 0) qFatal("no images read");
    });
}

double bareFileRead(const QString& path) {
    return bench::medianMs(kRuns, [&] {
        QFile f(path);
        if (!f.open(QIODevice::ReadOnly) || f.readAll().isEmpty()) qFatal("cannot read %s", qPrintable(path));
    });
}

} // namespace

int main() {
    QTemporaryDir dir;
    if (!dir.isValid()) qFatal("no temporary folder");
    bench::BenchPlatform platform(dir.path());
    Session session(dir.path(), platform.platform);
    session.settings.program.optBusinessType0 = false;
    auto& reprint = session.AddScreen(ScreenId::frmReprint, std::make_unique<frmReprint>(session));
    auto& sales = session.AddScreen(ScreenId::frmSales, std::make_unique<frmSales>(session));
    session.RegisterScreen(ScreenId::frmStartup, session.startup());

    std::printf("generating %d invoice images and %d journal records...\n", kImages, kJournalRecords);
    generateImages(session.disk);
    const QByteArray journal = journalBytes();
    const QString journalPath = dir.path() + QStringLiteral("/AssociateJournal.txt");
    auto writeJournal = [&] {
        QFile f(journalPath);
        if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(journal) != journal.size())
            qFatal("cannot write the journal");
    };
    writeJournal();

    const double listBare = bareImageRead(dir.path() + QStringLiteral("/CompletedInvoices"));
    const double list = bench::medianMs(kRuns, [&] { reprint.Show(); });
    if (reprint.fgReceivables.Rows() != kImages + 1) qFatal("the list holds %d rows", reprint.fgReceivables.Rows());

    const double loadBare = bareFileRead(journalPath);
    const double load = bench::medianMs(kRuns, [&] { sales.cmdIncome_Click(frmSales::kEternity); });
    if (sales.fgSales.Rows() < 2) qFatal("the report is empty");

    // A year out of the middle, answered Yes twice by the default buttons.
    const double del = bench::medianMs(
        kRuns,
        [&] { sales.cmdSales_Click(frmSales::kDeleteRecords); },
        [&] {
            writeJournal();
            sales.DTPicker1[0].value = QDate(2022, 1, 1);
            sales.DTPicker1_Change(0);
            sales.DTPicker1[1].value = QDate(2022, 12, 31);
            sales.DTPicker1_Change(1);
        });

    bench::report("reprint list, 10,000 images (bare read of the files)", listBare);
    bench::report("reprint list, 10,000 images", list);
    std::printf("%-58s %10.2f x\n", "  ratio (target under 2, and under 1000 ms)", list / listBare);
    bench::report("sales report load, 50,000 records (bare read)", loadBare);
    bench::report("sales report load, 50,000 records", load);
    std::printf("%-58s %10.2f x\n", "  ratio (target under 3, and under 200 ms)", load / loadBare);
    bench::report("sales records delete of one year (target under 500 ms)", del);
    return 0;
}
