// Times the account screen's activation on a full customer file of 32,767 records: the name list
// sorted and the city list, the companion check and record 1 loaded. The widgets' share is measured
// by the view test; this is the core alone.
#include "BenchPlatform.h"
#include "BenchUtil.h"
#include "accounts/CustomerStore.h"
#include "accounts/frmNewCustomer.h"
#include "shell/Session.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

using namespace ostrel;

namespace {

constexpr int kCustomers = CustomerStore::kMostCustomers;
constexpr int kRuns = 9;

const char* const kLastNames[] = {"Goldsmith", "Jones",  "Smithson", "Nunez", "Williams",
                                  "Garcia",    "Brown",  "Miller",   "Davis", "Rodriguez",
                                  "Martinez",  "Taylor", "Wilson"};

QByteArray customerFile() {
    QByteArray all;
    all.reserve(qsizetype(kCustomers) * CustomerRecord::kLength);
    for (int r = 1; r <= kCustomers; ++r) {
        CustomerRecord c;
        const bool business = r % 5 == 0;
        c.SetAccountNumber(QString::number(10000 + r));
        c.SetAccountType(business ? u"Business" : u"Individual");
        c.SetBusinessName(business ? QStringLiteral("Business %1 Supply").arg(r) : QString());
        c.SetAddress1(QStringLiteral("%1 Maple Dr").arg(r % 9000));
        c.SetAddress2(u"");
        c.SetCity(QStringLiteral("Town %1").arg(r % 60));
        c.SetServiceCity(QStringLiteral("Town %1").arg(r % 60));
        c.SetState(u"IL");
        c.SetPostalCode(u"62701");
        c.SetAddress4(u"62701");
        c.SetTelephone(QStringLiteral("217-555-%1").arg(r % 10000, 4, 10, QChar(u'0')));
        c.SetCellPhone(u"");
        c.SetEmail(u"");
        c.SetTitle(u"Mr.");
        c.SetFirstName(QStringLiteral("First%1").arg(r % 97));
        c.SetMiddleInitial(u"Q");
        c.SetLastName(QString::fromLatin1(kLastNames[r % 13]) + QString::number(r));
        all += c.bytes();
    }
    return all;
}

} // namespace

int main() {
    QTemporaryDir dir;
    if (!dir.isValid()) {
        std::fprintf(stderr, "no temporary folder\n");
        return 1;
    }
    bench::BenchPlatform world(dir.path());
    Session session(dir.path(), world.platform);
    auto& frm = session.AddScreen(ScreenId::frmNewCustomer,
                                  std::make_unique<frmNewCustomer>(session, session.customer));

    {
        QFile f(dir.path() + QStringLiteral("/CustomerData.txt"));
        if (!f.open(QIODevice::WriteOnly) ||
            f.write(customerFile()) != qint64(kCustomers) * CustomerRecord::kLength) {
            std::fprintf(stderr, "cannot write the customer file\n");
            return 1;
        }
    }
    frm.Load();
    frm.Show(); // the first activation also writes the two companion files
    frm.Hide();

    using bench::medianMs;
    const double activation = medianMs(
        kRuns, [&] { frm.Show(); }, [&] { frm.Hide(); });
    const double lists = medianMs(kRuns, [&] { frm.FillLists(); });
    std::printf("customers: %d, names listed: %d, cities listed: %d, boxes shown: %d\n", frm.CustomerCount,
                frm.cboAccounts.ListCount(), frm.cboCity.ListCount(), world.dialogs.boxes);
    bench::report("account screen activation (core, both lists filled)", activation);
    bench::report("of which the two lists alone", lists);
    return 0;
}
