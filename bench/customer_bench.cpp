// Times the customer store on a full customer file of 32,767 records against one plain read of the
// same file: the criteria search, the duplicate test and a deletion with compaction of all three files.
#include "BenchUtil.h"
#include "accounts/CustomerStore.h"
#include "store/DataRoot.h"
#include "store/DiskRoutines.h"
#include "store/RandomFile.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>

using namespace ostrel;

namespace {

constexpr int kCustomers = CustomerStore::kMostCustomers;
constexpr int kRuns = 9;

const char* const kLastNames[] = {"Goldsmith", "Jones",  "Smithson", "Nunez", "Williams",
                                  "Garcia",    "Brown",  "Miller",   "Davis", "Rodriguez",
                                  "Martinez",  "Taylor", "Wilson"};
const char* const kFirstNames[] = {"Richard", "Zoe",     "Renee",    "Robert",
                                   "William", "Barbara", "Jennifer", "Chen"};

void generate(CustomerStore& store, DiskRoutines& disk) {
    CustomerBuffers& b = store.buffers();
    store.OpenCustomerFile();
    for (int r = 1; r <= kCustomers; ++r) {
        CustomerRecord& c = b.customer;
        c = CustomerRecord();
        const bool business = r % 5 == 0;
        c.SetAccountNumber(QStringLiteral("%1").arg(10000 + r));
        c.SetAccountType(business ? u"Business" : u"Individual");
        c.SetBusinessName(business ? QStringLiteral("Business %1 Supply").arg(r) : QString());
        c.SetAddress1(QStringLiteral("%1 Maple Dr").arg(r % 9000));
        c.SetAddress2(r % 7 == 0 ? QStringLiteral("Apt %1").arg(r % 40) : QString());
        c.SetCity(u"Springfield");
        c.SetServiceCity(u"Springfield");
        c.SetState(u"IL");
        c.SetPostalCode(u"62701");
        c.SetAddress4(u"62701");
        c.SetTelephone(QStringLiteral("217-555-%1").arg(r % 10000, 4, 10, QChar(u'0')));
        c.SetCellPhone(u"");
        c.SetEmail(u"");
        c.SetTitle(u"Mr.");
        c.SetFirstName(QString::fromLatin1(kFirstNames[r % 8]));
        c.SetMiddleInitial(u"Q");
        c.SetLastName(QString::fromLatin1(kLastNames[r % 13]));
        c.SetCustomerReserved(0);
        c.SetAssignedPointOfService(0);
        store.WriteCustomer(r);
    }
    disk.CloseAllFiles();
    store.ResetCompanionBuffers(QDate(2026, 11, 20));
    store.RebuildContractFile(kCustomers, {});
    store.RebuildCycleFile(kCustomers, {});
}

} // namespace

int main() {
    QTemporaryDir dir;
    if (!dir.isValid()) {
        std::fprintf(stderr, "no temporary folder\n");
        return 1;
    }
    DataRoot root(dir.path());
    DiskRoutines disk(root);
    CustomerBuffers buffers;
    CustomerStore store(disk, buffers);

    QElapsedTimer generation;
    generation.start();
    generate(store, disk);
    std::printf("generated with one write per customer record: %.0f ms\n",
                static_cast<double>(generation.nsecsElapsed()) / 1e6);
    disk.MakeDirectoryIfAbsent("/Template");
    const QStringList files{"/CustomerData.txt", "/ContractInfo.txt", "/CycleInfo.txt"};
    for (const QString& f : files)
        disk.CopyDataFile(f, "/Template" + f);
    std::printf("customers: %d (%lld bytes)\n", store.CustomerCount(),
                root.resolve("/CustomerData.txt").size);

    using bench::medianMs;
    const double read = medianMs(kRuns, [&] {
        store.OpenCustomerFile();
        for (int r = 1; r <= kCustomers; ++r)
            store.ReadCustomer(r);
        disk.CloseAllFiles();
    });
    int found = 0;
    const double search =
        medianMs(kRuns, [&] { store.SearchCustomers(CustomerStore::ByLastName, "smith", false, found); });
    bool duplicate = true;
    const double dupe = medianMs(kRuns, [&] { duplicate = store.FindAccountElsewhere("99999-absent", 1); });
    const double remove = medianMs(
        kRuns,
        [&] { store.DeleteCustomer(kCustomers / 2, QString::number(10000 + kCustomers / 2), kCustomers); },
        [&] {
            for (const QString& f : files)
                disk.CopyDataFile("/Template" + f, f);
        });

    std::printf("read the customer file start to end: median %8.2f ms\n", read);
    std::printf("criteria search (%5d hits):         median %8.2f ms  (%.2f x read)\n", found, search,
                search / read);
    std::printf("duplicate test (%s):             median %8.2f ms  (%.2f x read)\n",
                duplicate ? "hit " : "none", dupe, dupe / read);
    std::printf("delete with compaction of 3 files:   median %8.2f ms\n", remove);
    std::printf("after delete: %d customers\n", store.CustomerCount());
    return 0;
}
