#include "accounts/CustomerStore.h"
#include "TestDataRoot.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

#include <vector>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

const QDate kToday(2026, 11, 20);

CustomerRecord person(const char* account, const char* first, const char* last) {
    CustomerRecord c;
    c.SetAccountNumber(QString::fromLatin1(account));
    c.SetFirstName(QString::fromLatin1(first));
    c.SetLastName(QString::fromLatin1(last));
    c.SetMiddleInitial(u"");
    c.SetAccountType(u"Individual");
    return c;
}

struct Shop {
    TestDataRoot t;
    CustomerBuffers buffers;
    CustomerStore store{t.disk(), buffers};

    void writeCustomers(const std::vector<CustomerRecord>& customers) {
        store.OpenCustomerFile();
        int r = 0;
        for (const CustomerRecord& c : customers) {
            buffers.customer = c;
            store.WriteCustomer(++r);
        }
        t.disk().CloseAllFiles();
    }
    QByteArray customerBytes(int r) { return t.readBytes("/CustomerData.txt").mid((r - 1) * 328, 328); }
};

struct Box {
    QString prompt;
    QString title;
};

} // namespace

TEST(CustomerStore, CountIsZeroWithoutAFileAndFollowsTheFileLength) {
    Shop s;
    EXPECT_EQ(s.store.CustomerCount(), 0);
    s.writeCustomers({person("1", "A", "B"), person("2", "C", "D")});
    EXPECT_EQ(s.store.CustomerCount(), 2);
    EXPECT_EQ(s.t.readBytes("/CustomerData.txt").size(), 656);
}

TEST(CustomerStore, WritesTheBufferAtItsRecordNumber) {
    Shop s;
    s.writeCustomers({person("1", "A", "B"), person("2", "C", "D"), person("3", "E", "F")});
    EXPECT_EQ(s.customerBytes(2), person("2", "C", "D").bytes());
    EXPECT_EQ(s.customerBytes(3), person("3", "E", "F").bytes());
}

TEST(CustomerStore, ReadOverwritesTheWholeBuffer) {
    Shop s;
    s.writeCustomers({person("1", "A", "B"), person("2", "C", "D")});
    s.buffers.customer.SetCustomerReserved(99);
    s.store.OpenCustomerFile();
    s.store.ReadCustomer(2);
    s.t.disk().CloseAllFiles();
    EXPECT_EQ(s.buffers.customer, person("2", "C", "D"));
}

TEST(CustomerStore, ReadAndWriteNeedTheCustomerFileOnThePrimaryChannel) {
    Shop s;
    EXPECT_THROW(s.store.ReadCustomer(1), StoreError);
    s.t.disk().OpenCycleFile();
    s.t.disk().OpenRandom("/Other.txt", 10);
    EXPECT_THROW(s.store.WriteCustomer(1), StoreError);
    s.t.disk().CloseAllFiles();
}

TEST(CustomerStore, SavingARecordUnchangedGivesTheSameBytes) {
    Shop s;
    QByteArray raw(328, '\0');
    for (int i = 0; i < raw.size(); ++i)
        raw[i] = static_cast<char>((i * 37) % 256); // every byte value
    s.t.writeBytes("/CustomerData.txt", QByteArray(328, 'a') + raw + QByteArray(328, 'c'));
    const QByteArray before = s.t.readBytes("/CustomerData.txt");
    s.store.OpenCustomerFile();
    s.store.ReadCustomer(2);
    s.store.WriteCustomer(2);
    s.t.disk().CloseAllFiles();
    EXPECT_EQ(s.t.readBytes("/CustomerData.txt"), before);
}

TEST(CustomerStore, UntouchedFieldsTravelFromTheLastReadIntoTheNextWrite) {
    Shop s;
    CustomerRecord first = person("1", "A", "B");
    first.SetAssignedPointOfService(3);
    first.SetCustomerReserved(7);
    s.writeCustomers({first});
    s.store.LoadCustomerAt(1);
    // An edit of the boxes sets text fields only.
    s.buffers.customer.SetAccountNumber(u"1");
    s.buffers.customer.SetLastName(u"Changed");
    s.store.SaveCustomerAt(1, kToday);
    const QByteArray saved = s.customerBytes(1);
    EXPECT_EQ(saved.mid(324, 4), QByteArray("\x07\x00\x03\x00", 4));
    EXPECT_EQ(saved.mid(289, 7), QByteArray("Changed"));
}

TEST(CustomerStore, ANewCustomerTakesOverThePointOfServiceOfTheLastReadButNotTheReservedField) {
    Shop s;
    CustomerRecord first = person("1", "A", "B");
    first.SetAssignedPointOfService(5);
    first.SetCustomerReserved(12);
    first.SetServiceCity(u"Chatham");
    s.writeCustomers({first});
    s.store.LoadCustomerAt(1);

    // Add: a new record number after the last, the buffer cleared as an Add clears it.
    const int newRecord = s.store.CustomerCount() + 1;
    s.buffers.customer.ClearForNewAccount();
    s.buffers.customer.SetAccountNumber(u"2");
    s.buffers.customer.SetLastName(u"New");
    s.store.SaveCustomerAt(newRecord, kToday);

    ASSERT_EQ(s.store.CustomerCount(), 2);
    const QByteArray added = s.customerBytes(2);
    EXPECT_EQ(added.mid(324, 2), QByteArray("\x00\x00", 2)); // CustomerReserved set to 0
    EXPECT_EQ(added.mid(326, 2), QByteArray("\x05\x00", 2)); // AssignedPointOfService carried over
    EXPECT_EQ(added.mid(150, 20), QByteArray("Chatham             "));
    EXPECT_EQ(added.mid(314, 10), QByteArray("Business  "));
}

TEST(CustomerStore, SavingWritesAllThreeFilesAtTheRecordAndResetsTheCompanions) {
    Shop s;
    s.store.ResetCompanionBuffers(kToday);
    s.buffers.contract.record().setText(0, 35, u"Monthly");
    s.buffers.cycle.record().setText(0, 35, u"Weekly");
    s.buffers.customer = person("1", "A", "B");
    s.store.SaveCustomerAt(1, kToday);

    EXPECT_EQ(s.t.readBytes("/CustomerData.txt"), person("1", "A", "B").bytes());
    EXPECT_EQ(s.t.readBytes("/ContractInfo.txt").left(7), QByteArray("Monthly"));
    EXPECT_EQ(s.t.readBytes("/ContractInfo.txt").size(), 386);
    EXPECT_EQ(s.t.readBytes("/CycleInfo.txt").left(6), QByteArray("Weekly"));
    EXPECT_EQ(s.t.readBytes("/CycleInfo.txt").size(), 69);
    EXPECT_EQ(s.buffers.contract.bytes().left(13), QByteArray("None Selected"));
    EXPECT_EQ(s.buffers.cycle.bytes().left(5), QByteArray("None "));
    EXPECT_EQ(s.t.disk().OpenChannelCount(), 0);
}

TEST(CustomerStore, CompanionReadsAndWritesUseTheirOwnRecordNumbers) {
    Shop s;
    s.store.ResetCompanionBuffers(kToday);
    s.store.WriteContract(1);
    s.store.WriteCycle(1);
    s.buffers.contract.record().setText(0, 35, u"Second");
    s.buffers.cycle.record().setInt16(43, 4);
    s.store.WriteContract(2);
    s.store.WriteCycle(2);
    s.store.ResetCompanionBuffers(kToday);

    s.store.ReadContract(2);
    s.store.ReadCycle(2);
    EXPECT_EQ(s.buffers.contract.bytes().left(6), QByteArray("Second"));
    EXPECT_EQ(s.buffers.cycle.record().int16(43), 4);
    s.store.ReadContract(1);
    EXPECT_EQ(s.buffers.contract.bytes().left(13), QByteArray("None Selected"));
    EXPECT_EQ(s.t.disk().OpenChannelCount(), 0);
}

TEST(CustomerStore, ResetCompanionBuffersLoadsTheDefaultsOfBoth) {
    Shop s;
    s.store.ResetCompanionBuffers(kToday);
    ContractInfoRecord contract;
    contract.ResetToDefaults(kToday);
    CycleInfoRecord cycle;
    cycle.ResetToDefaults();
    EXPECT_EQ(s.buffers.contract, contract);
    EXPECT_EQ(s.buffers.cycle, cycle);
}

TEST(CustomerStore, ACustomerPastThe32767thIsRefusedAndNothingIsWritten) {
    Shop s;
    s.writeCustomers({person("1", "A", "B")});
    s.store.OpenCustomerFile();
    EXPECT_THROW(s.store.WriteCustomer(32768), StoreError);
    s.t.disk().CloseAllFiles();
    EXPECT_THROW(s.store.WriteContract(32768), StoreError);
    EXPECT_THROW(s.store.WriteCycle(32768), StoreError);
    EXPECT_EQ(s.t.readBytes("/CustomerData.txt").size(), 328);
    EXPECT_FALSE(s.t.isFile("/ContractInfo.txt"));
    EXPECT_FALSE(s.t.isFile("/CycleInfo.txt"));
}

TEST(CustomerStore, ACycleFileDeletedFromOutsideIsRebuiltWithOneDefaultRecordPerCustomer) {
    Shop s;
    s.writeCustomers({person("1", "A", "B"), person("2", "C", "D"), person("3", "E", "F")});
    s.t.writeBytes("/ContractInfo.txt", QByteArray(3 * 386, 'k'));
    std::vector<Box> boxes;
    s.store.ResetCompanionBuffers(kToday);
    s.store.RebuildMissingCompanions(s.store.CustomerCount(), [&](const QString& p, const QString& t) {
        boxes.push_back({p, t});
    });
    // The owner is told: the rebuilt file holds defaults where the lost one held what was entered.
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].title, "Customer Files");
    EXPECT_EQ(boxes[0].prompt,
              "The file CycleInfo.txt was missing, so it was made anew with the default entries for each of the 3 "
              "customers.");
    CycleInfoRecord defaults;
    defaults.ResetToDefaults();
    EXPECT_EQ(s.t.readBytes("/CycleInfo.txt"), defaults.bytes().repeated(3));
    EXPECT_EQ(s.t.readBytes("/ContractInfo.txt"), QByteArray(3 * 386, 'k')); // present: left alone
}

TEST(CustomerStore, RebuildingTheContractFileWritesTheBufferAtEveryRecordAndDropsTheBackup) {
    Shop s;
    s.writeCustomers({person("1", "A", "B"), person("2", "C", "D")});
    s.t.writeBytes("/Backup/ContractInfo.txt", "old");
    s.store.ResetCompanionBuffers(kToday);
    s.store.RebuildContractFile(2, {});
    ContractInfoRecord defaults;
    defaults.ResetToDefaults(kToday);
    EXPECT_EQ(s.t.readBytes("/ContractInfo.txt"), defaults.bytes().repeated(2));
    EXPECT_FALSE(s.t.isFile("/Backup/ContractInfo.txt"));
}

TEST(CustomerStore, RebuildReplacesALongerCompanionFileWhole) {
    Shop s;
    s.writeCustomers({person("1", "A", "B")});
    s.t.writeBytes("/CycleInfo.txt", QByteArray(5 * 69, 'z'));
    s.store.ResetCompanionBuffers(kToday);
    s.store.RebuildCycleFile(1, {});
    EXPECT_EQ(s.t.readBytes("/CycleInfo.txt"), s.buffers.cycle.bytes());
}

TEST(CustomerStore, RebuildWithoutACustomerFileTellsTheUserAndWritesNothing) {
    Shop s;
    std::vector<Box> boxes;
    const CustomerMessage sink = [&](const QString& p, const QString& t) { boxes.push_back({p, t}); };
    s.store.RebuildContractFile(4, sink);
    s.store.RebuildCycleFile(4, sink);
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes[0].title, "No Customer File Found");
    EXPECT_EQ(boxes[0].prompt,
              "Your Customer Information File is missing\nThe Contract File can not be rebuilt");
    EXPECT_EQ(boxes[1].title, "No Customer File Found");
    EXPECT_EQ(boxes[1].prompt,
              "Your Customer Information File is missing\nThe Cycle File can not be rebuilt");
    EXPECT_FALSE(s.t.isFile("/ContractInfo.txt"));
    EXPECT_FALSE(s.t.isFile("/CycleInfo.txt"));
}

TEST(CustomerStore, RebuildForAnEmptyCustomerFileLeavesAnEmptyCompanion) {
    Shop s;
    s.t.writeBytes("/CustomerData.txt", {});
    s.store.ResetCompanionBuffers(kToday);
    s.store.RebuildMissingCompanions(s.store.CustomerCount(), {});
    EXPECT_TRUE(s.t.isFile("/CycleInfo.txt"));
    EXPECT_EQ(s.t.readBytes("/CycleInfo.txt").size(), 0);
    EXPECT_EQ(s.t.readBytes("/ContractInfo.txt").size(), 0);
}
