// The legacy shop tree, written by another program, as a second opinion on the customer formats.
#include "TestDataRoot.h"
#include "accounts/AuxData.h"
#include "accounts/CustomerNames.h"
#include "accounts/CustomerStore.h"
#include "accounts/StatesList.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

QByteArray legacyBytes(const QString& relative) {
    QFile f(ostrel::test::legacyFixture() + relative);
    if (!f.open(QIODevice::ReadOnly)) ADD_FAILURE() << "cannot read " << relative.toStdString();
    return f.readAll();
}

struct LegacyShop {
    TestDataRoot t;
    CustomerBuffers buffers;
    CustomerStore store{t.disk(), buffers};

    LegacyShop() {
        for (const char* f :
             {"/CustomerData.txt", "/ContractInfo.txt", "/CycleInfo.txt", "/AuxHeadings.txt",
              "/StatesList.txt", "/AuxFiles/10023/AuxFile0/Data.txt", "/AuxFiles/10023/AuxFile1/Data.txt"})
            t.writeBytes(f, legacyBytes(f));
    }
};

// The list entry as read straight from the bytes of record r: a Business by name, a person as
// "Last, First I" with the initial byte as it stands.
QString expectedListName(const QByteArray& file, int r) {
    const QByteArray rec = file.mid((r - 1) * 328, 328);
    const auto field = [&](int offset, int width) {
        return QString::fromLatin1(rec.mid(offset, width))
            .trimmed(); // these records hold Latin-1 letters only
    };
    if (field(314, 10) == "Business") return field(20, 45);
    return field(289, 25) + ", " + field(273, 15) + " " + QString::fromLatin1(rec.mid(288, 1));
}

} // namespace

TEST(LegacyCustomers, EveryRecordReadsWithItsListEntry) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    LegacyShop s;
    ASSERT_EQ(s.store.CustomerCount(), 240);
    const QByteArray file = s.t.readBytes("/CustomerData.txt");
    const auto list = s.store.ReadAccountList();
    ASSERT_EQ(list.size(), 240);
    for (int r = 1; r <= 240; ++r) {
        EXPECT_EQ(list[r - 1].listName, expectedListName(file, r)) << "record " << r;
        EXPECT_EQ(list[r - 1].recordNumber, r);
    }
    EXPECT_EQ(list[0].listName, "Goldsmith, Richard P");
    EXPECT_EQ(list[0].city, "Rochester");
    EXPECT_EQ(list[1].listName, "Prairie Bakery");
    EXPECT_EQ(list[90].listName, "Goldsmith, Renée  "); // record 91 has no initial
    EXPECT_EQ(list[18].listName, "Williams, Zoë N");
}

TEST(LegacyCustomers, EveryRecordIsFoundByItsAccountAndItsTelephone) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    LegacyShop s;
    s.store.OpenCustomerFile();
    QStringList accounts, phones;
    for (int r = 1; r <= 240; ++r) {
        s.store.ReadCustomer(r);
        accounts << s.buffers.customer.AccountNumber().trimmed();
        phones << s.buffers.customer.Telephone().trimmed();
    }
    s.t.disk().CloseAllFiles();
    for (int r = 1; r <= 240; ++r) {
        int found = 0;
        const auto byAccount =
            s.store.SearchCustomers(CustomerStore::ByAccountNumber, accounts[r - 1], false, found);
        bool hit = false;
        for (const auto& h : byAccount)
            hit = hit || h.recordNumber == r;
        EXPECT_TRUE(hit) << "record " << r;
        const auto byPhone = s.store.SearchCustomers(CustomerStore::ByTelephone, phones[r - 1], false, found);
        hit = false;
        for (const auto& h : byPhone)
            hit = hit || (h.recordNumber == r && h.telephone == phones[r - 1]);
        EXPECT_TRUE(hit) << "record " << r;
    }
}

TEST(LegacyCustomers, SearchResultsNameTheCustomerAsTheGridShowsIt) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    LegacyShop s;
    int found = 0;
    const auto hits = s.store.SearchCustomers(CustomerStore::ByAccountNumber, "217-555-0791", false, found);
    ASSERT_EQ(found, 1);
    EXPECT_EQ(hits[0].name, "Mr/Mrs Richard P. Goldsmith");
    EXPECT_EQ(hits[0].telephone, "217-555-0791");
    EXPECT_EQ(hits[0].recordNumber, 1);
    const auto smiths = s.store.SearchCustomers(CustomerStore::ByLastName, "smith", false, found);
    ASSERT_GT(found, 1);
    for (const auto& h : smiths)
        EXPECT_TRUE(h.name.contains("smith", Qt::CaseInsensitive)) << h.name.toStdString();
}

TEST(LegacyCustomers, SavingEveryRecordUnchangedGivesTheSameBytes) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    LegacyShop s;
    const QByteArray customers = s.t.readBytes("/CustomerData.txt");
    const QByteArray contracts = s.t.readBytes("/ContractInfo.txt");
    const QByteArray cycles = s.t.readBytes("/CycleInfo.txt");
    for (int r = 1; r <= 240; ++r) {
        s.store.LoadCustomerAt(r);
        s.store.OpenCustomerFile();
        s.store.WriteCustomer(r);
        s.t.disk().CloseAllFiles();
        s.store.WriteContract(r);
        s.store.WriteCycle(r);
    }
    EXPECT_EQ(s.t.readBytes("/CustomerData.txt"), customers);
    EXPECT_EQ(s.t.readBytes("/ContractInfo.txt"), contracts);
    EXPECT_EQ(s.t.readBytes("/CycleInfo.txt"), cycles);
}

TEST(LegacyCustomers, CompanionRecordsAreTheDefaultsOfTheirDay) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    LegacyShop s;
    // A program start: buffers never read, then the defaults of Friday 2026-11-20.
    s.store.ResetCompanionBuffers(QDate(2026, 11, 20));
    s.store.ReadContract(1);
    s.store.ReadCycle(240);
    ContractInfoRecord contract;
    contract.ResetToDefaults(QDate(2026, 11, 20));
    CycleInfoRecord cycle;
    cycle.ResetToDefaults();
    EXPECT_EQ(s.buffers.contract.bytes(), contract.bytes());
    EXPECT_EQ(s.buffers.cycle.bytes(), cycle.bytes());
}

TEST(LegacyCustomers, DeletingARecordKeepsTheThreeFilesInStep) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    LegacyShop s;
    const QByteArray customers = s.t.readBytes("/CustomerData.txt");
    EXPECT_EQ(s.store.DeleteCustomer(100, "10099", 240), 239);
    EXPECT_EQ(s.t.readBytes("/CustomerData.txt"), customers.left(99 * 328) + customers.mid(100 * 328));
    EXPECT_EQ(s.t.readBytes("/ContractInfo.txt").size(), 239 * 386);
    EXPECT_EQ(s.t.readBytes("/CycleInfo.txt").size(), 239 * 69);
}

TEST(LegacyCustomers, HeadingsAuxDataAndStatesRead) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    LegacyShop s;
    EXPECT_EQ(AuxData::ReadAuxHeadings(s.t.disk()),
              (QStringList{"Equipment", "Filter Size", "Gate Code", "Pets", "Notes", ""}));
    const QStringList boxes = AuxData::LoadAuxData(s.t.disk(), "10023");
    EXPECT_EQ(boxes[0], "Carrier 58STA furnace\r\ninstalled 2014\r\nattic\r\n");
    EXPECT_EQ(boxes[1], "16x25x1\r\n");
    EXPECT_EQ(boxes[2], "");
    const QStringList states = ReadStatesList(s.t.disk());
    ASSERT_EQ(states.size(), 50);
    EXPECT_EQ(states.first(), "AL");
    EXPECT_EQ(states.last(), "WY");
}
