#include "TestDataRoot.h"
#include "accounts/CustomerStore.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

// Three parallel files whose record i is recognisable: the customer's account is "C<i>", the
// contract starts "K<i>", the cycle starts "Y<i>".
struct Shop {
    TestDataRoot t;
    CustomerBuffers buffers;
    CustomerStore store{t.disk(), buffers};

    explicit Shop(int count) {
        store.ResetCompanionBuffers(QDate(2026, 11, 20));
        store.OpenCustomerFile();
        for (int i = 1; i <= count; ++i) {
            buffers.customer.SetAccountNumber(QStringLiteral("C%1").arg(i));
            buffers.customer.SetAccountType(u"Business");
            store.WriteCustomer(i);
        }
        t.disk().CloseAllFiles();
        for (int i = 1; i <= count; ++i) {
            buffers.contract.record().setText(0, 35, QStringLiteral("K%1").arg(i));
            buffers.cycle.record().setText(0, 35, QStringLiteral("Y%1").arg(i));
            store.WriteContract(i);
            store.WriteCycle(i);
        }
    }

    QStringList column(const QString& file, int length) {
        const QByteArray bytes = t.readBytes(file);
        QStringList out;
        for (qsizetype at = 0; at < bytes.size(); at += length)
            out << QString::fromLatin1(bytes.mid(at, 4)).trimmed();
        return out;
    }
};

} // namespace

TEST(DeleteCustomer, ShiftsLaterRecordsDownInAllThreeFiles) {
    Shop s(5);
    EXPECT_EQ(s.store.DeleteCustomer(2, "C2", 5), 4);
    EXPECT_EQ(s.column("/CustomerData.txt", 328), (QStringList{"C1", "C3", "C4", "C5"}));
    EXPECT_EQ(s.column("/CycleInfo.txt", 69), (QStringList{"Y1", "Y3", "Y4", "Y5"}));
    EXPECT_EQ(s.column("/ContractInfo.txt", 386), (QStringList{"K1", "K3", "K4", "K5"}));
    EXPECT_EQ(s.t.readBytes("/CustomerData.txt").size(), 4 * 328);
    EXPECT_EQ(s.t.readBytes("/CycleInfo.txt").size(), 4 * 69);
    EXPECT_EQ(s.t.readBytes("/ContractInfo.txt").size(), 4 * 386);
    EXPECT_EQ(s.store.CustomerCount(), 4);
}

TEST(DeleteCustomer, KeepsEveryOtherRecordByteForByte) {
    Shop s(3);
    const QByteArray before = s.t.readBytes("/CustomerData.txt");
    s.store.DeleteCustomer(3, "C3", 3);
    EXPECT_EQ(s.t.readBytes("/CustomerData.txt"), before.left(2 * 328));
    s.store.DeleteCustomer(1, "C1", 2);
    EXPECT_EQ(s.t.readBytes("/CustomerData.txt"), before.mid(328, 328));
}

TEST(DeleteCustomer, TheOnlyCustomerLeavesAZeroLengthFileAndTheNextCountIsZero) {
    Shop s(1);
    EXPECT_EQ(s.store.DeleteCustomer(1, "C1", 1), 1); // the screen's count stays 1
    EXPECT_TRUE(s.t.isFile("/CustomerData.txt"));
    EXPECT_EQ(s.t.readBytes("/CustomerData.txt").size(), 0);
    EXPECT_EQ(s.t.readBytes("/CycleInfo.txt").size(), 0);
    EXPECT_EQ(s.t.readBytes("/ContractInfo.txt").size(), 0);
    EXPECT_EQ(s.store.CustomerCount(), 0);
}

TEST(DeleteCustomer, AlsoDeletesTheOpenAccountFileAndItsBackup) {
    Shop s(2);
    s.t.writeBytes("/OIActiveAccounts/C2.txt", "open");
    s.t.writeBytes("/Backup/OIActiveAccounts/C2.txt", "open");
    s.t.writeBytes("/OIActiveAccounts/C1.txt", "other");
    s.store.DeleteCustomer(2, "  C2 ", 2);
    EXPECT_FALSE(s.t.isFile("/OIActiveAccounts/C2.txt"));
    EXPECT_FALSE(s.t.isFile("/Backup/OIActiveAccounts/C2.txt"));
    EXPECT_TRUE(s.t.isFile("/OIActiveAccounts/C1.txt"));
}

TEST(DeleteCustomer, LeavesTheAuxFolderOnDisk) {
    Shop s(2);
    s.t.writeBytes("/AuxFiles/C1/AuxFile0/Data.txt", "notes\r\n");
    s.store.DeleteCustomer(1, "C1", 2);
    EXPECT_EQ(s.t.readBytes("/AuxFiles/C1/AuxFile0/Data.txt"), QByteArray("notes\r\n"));
}

TEST(DeleteCustomer, LeavesNoScratchFileAndRemovesStaleOnes) {
    Shop s(3);
    s.t.writeBytes("/CUSTOMER.TMP", QByteArray(5 * 328, 'x'));
    s.t.writeBytes("/Temp.txt", QByteArray(7 * 69, 'x'));
    s.store.DeleteCustomer(2, "C2", 3);
    EXPECT_FALSE(s.t.isFile("/CUSTOMER.TMP"));
    EXPECT_FALSE(s.t.isFile("/Temp.txt"));
    EXPECT_EQ(s.column("/CustomerData.txt", 328), (QStringList{"C1", "C3"}));
    EXPECT_EQ(s.column("/CycleInfo.txt", 69), (QStringList{"Y1", "Y3"}));
    EXPECT_EQ(s.t.disk().OpenChannelCount(), 0);
}

TEST(DeleteCustomer, DropsTheBackupCopiesOfTheThreeFiles) {
    Shop s(2);
    for (const char* f : {"/Backup/CustomerData.txt", "/Backup/CycleInfo.txt", "/Backup/ContractInfo.txt"})
        s.t.writeBytes(f, "stale");
    s.store.DeleteCustomer(1, "C1", 2);
    EXPECT_FALSE(s.t.isFile("/Backup/CustomerData.txt"));
    EXPECT_FALSE(s.t.isFile("/Backup/CycleInfo.txt"));
    EXPECT_FALSE(s.t.isFile("/Backup/ContractInfo.txt"));
}

TEST(DeleteCustomer, AnAccountThatCannotNameAFileIsDeletedAndNoPathLeavesTheDataFolder) {
    Shop s(3);
    s.t.writeBytes("/OIActiveAccounts/12.txt", "kept");
    // "../CustomerData" would name the customer file itself were it taken as a path.
    EXPECT_EQ(s.store.DeleteCustomer(1, "../CustomerData", 3), 2);
    EXPECT_EQ(s.column("/CustomerData.txt", 328), (QStringList{"C2", "C3"}));
    EXPECT_EQ(s.store.DeleteCustomer(1, "12\\34", 2), 1);
    EXPECT_EQ(s.column("/CustomerData.txt", 328), (QStringList{"C3"}));
    EXPECT_EQ(s.column("/CycleInfo.txt", 69), (QStringList{"Y3"}));
    EXPECT_EQ(s.t.readBytes("/OIActiveAccounts/12.txt"), "kept");
}

TEST(DeleteCustomer, AMissingCompanionStaysMissingForTheNextRebuild) {
    Shop s(3);
    s.t.disk().DeleteFileAndBackup("/CycleInfo.txt");
    s.store.DeleteCustomer(1, "C1", 3);
    EXPECT_FALSE(s.t.isFile("/CycleInfo.txt"));
    EXPECT_EQ(s.column("/ContractInfo.txt", 386), (QStringList{"K2", "K3"}));
    s.store.ResetCompanionBuffers(QDate(2026, 11, 20));
    s.store.RebuildMissingCompanions(s.store.CustomerCount(), {});
    EXPECT_EQ(s.column("/CycleInfo.txt", 69), (QStringList{"None", "None"}));
}

TEST(DeleteCustomer, ARecordNumberBeyondTheFileRemovesNothing) {
    Shop s(2);
    const QByteArray customers = s.t.readBytes("/CustomerData.txt");
    EXPECT_EQ(s.store.DeleteCustomer(7, "C7", 2), 1);
    EXPECT_EQ(s.t.readBytes("/CustomerData.txt"), customers);
}
