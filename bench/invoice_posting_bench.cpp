// Posting an invoice of 100 lines on a catalogue of 255 items, with journals already long: 50,000
// sold items, the associate journal at its 32,767-record limit's neighbourhood (32,000), 30,000 tax
// records and a ledger of 500 entries. Prints the median; the target is under 50 ms.
#include "BenchPlatform.h"
#include "BenchUtil.h"
#include "catalogue/CustomItemRecord.h"
#include "catalogue/InventoriedItemRecord.h"
#include "catalogue/ServiceRecord.h"
#include "catalogue/frmServices.h"
#include "invoicing/AssociateJournal.h"
#include "invoicing/PostingRecords.h"
#include "invoicing/frmInvoice.h"
#include "setup/frmSetup.h"
#include "shell/Session.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace ostrel;

namespace {

constexpr int kItems = 255;
constexpr int kRuns = 15;

void writeRecords(const QString& path, int count, int length, const std::function<Record(int)>& make) {
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate)) qFatal("cannot write %s", qPrintable(path));
    QByteArray bytes;
    bytes.reserve(qsizetype(count) * length);
    for (int i = 0; i < count; ++i)
        bytes += make(i).bytes();
    f.write(bytes);
}

void generate(const QString& root) {
    writeRecords(root + "/OIInventoriedItems.txt", kItems, InventoriedItemRecord::kLength, [](int i) {
        InventoriedItemRecord r;
        r.Description = QStringLiteral("Inventoried item %1").arg(i);
        r.Category = QStringLiteral("Category %1").arg(i % 17);
        r.SellPrice = 15000LL * (i + 1);
        r.OnHand = 30000;
        return r.toRecord();
    });
    writeRecords(root + "/CustomItems.txt", kItems, CustomItemRecord::kLength, [](int i) {
        return CustomItemRecord{QStringLiteral("Custom %1").arg(i), 25000LL * (i + 1), 0, 0}.toRecord();
    });
    writeRecords(root + "/Services.txt", kItems, ServiceRecord::kLength, [](int i) {
        return ServiceRecord{QStringLiteral("Service %1").arg(i), QStringLiteral("$%1.00").arg(20 + i), 4}.toRecord();
    });
    writeRecords(root + "/SoldItems.txt", 50000, SoldItemRecord::kLength, [](int i) {
        return SoldItemRecord{QStringLiteral("Inventoried item %1").arg(i % kItems), QDate(2026, 1, 1 + i % 28),
                              QString::number(20260001 + i / 3), 1}
            .toRecord();
    });
    writeRecords(root + "/AssociateJournal.txt", 32000, AssociateJournalRecord::kLength, [](int i) {
        AssociateJournalRecord r;
        r.Transaction = QStringLiteral("Customer %1").arg(i);
        r.Account = QString::number(20260001 + i);
        r.JournalDate = QDate(2026, 1, 1 + i % 28);
        r.Associate = QStringLiteral("Crew One");
        r.SubTotal = r.Gross = Money::fromTenThousandths(1000000);
        return r.toRecord();
    });
    writeRecords(root + "/TaxRecords.txt", 30000, TaxRecord::kLength, [](int i) {
        return TaxRecord{"Sales Tax", "1/2/2026", QString::number(20260001 + i), "1.6492"}.toRecord();
    });
    QDir(root).mkpath("OIActiveAccounts");
    QDir(root).mkpath("CompletedInvoices");
    writeRecords(root + "/OIActiveAccounts/2175550199.txt", 500, LedgerRecord::kLength, [](int i) {
        return LedgerRecord{"Dana Whitfield", "2175550199", "1/2/2026", QString::number(20260001 + i), "$45.00"}
            .toRecord();
    });
}

} // namespace

int main() {
    QTemporaryDir dir;
    generate(dir.path());
    bench::BenchPlatform outside(dir.path());
    Session session(dir.path(), outside.platform);
    session.AddScreen(ScreenId::frmSetup, std::make_unique<frmSetup>(session));
    auto& services =
        session.AddScreen(ScreenId::frmServices, std::make_unique<frmServices>(session, session.catalogueLists));
    auto& frm = session.AddScreen(ScreenId::frmInvoice, std::make_unique<frmInvoice>(session, session.catalogueLists));
    session.settings.program.optBusinessType0 = false; // Associate Sales: the journal is written too
    session.settings.program.ckApply2ndTax = 1;
    services.Load();
    frm.Show();

    auto compose = [&] {
        frm.Show();
        frm.lblAcctNo.caption = frm.lblAcct.caption = QStringLiteral("2175550199");
        frm.lblCustomer[6].caption = QStringLiteral("Dana Whitfield");
        frm.ck2ndTax.value = 1;
        for (int row = 1; row <= 100; ++row) {
            const int item = (row * 37) % kItems;
            frm.fgInvoice.SetTextMatrix(row, 0, QString::number(row % 5 + 1));
            frm.fgInvoice.SetTextMatrix(row, 1, QStringLiteral("Inventoried item %1").arg(item));
            frm.fgInvoice.SetTextMatrix(row, 3, FormatMoney(Money::fromTenThousandths(15000LL * (item + 1))));
            frm.fgInvoice.SetTextMatrix(
                row, 4, FormatMoney(Money::fromTenThousandths(15000LL * (item + 1) * (row % 5 + 1))));
            frm.fgInvoice.SetTextMatrix(row, 5, QStringLiteral("True"));
        }
        frm.LineCount = 100;
        frm.cmdInvoice_Click(9);
    };
    const double ms = bench::medianMs(kRuns, [&] { frm.PostInvoice(); }, compose);
    bench::report("post a 100-line invoice (journals of 50,000 records)", ms);
    return 0;
}
