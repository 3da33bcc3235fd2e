#include "FaultyFileOps.h"
#include "TestDataRoot.h"
#include "accounts/CustomerStore.h"
#include "shell/DataDirectories.h"
#include "store/FileOps.h"
#include "store/SafeReplace.h"
#include "store/StoreError.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

// Records the order of the calls that matter for durability.
class CallLog : public FileOps {
public:
    QStringList calls;
    long long write(int fd, const char* d, long long n) override {
        calls << QStringLiteral("write");
        return FileOps::write(fd, d, n);
    }
    long long pwrite(int fd, const char* d, long long n, long long at) override {
        calls << QStringLiteral("write");
        return FileOps::pwrite(fd, d, n, at);
    }
    int fsync(int fd) override {
        calls << QStringLiteral("fsync");
        return FileOps::fsync(fd);
    }
    int rename(const QByteArray& from, const QByteArray& to) override {
        calls << QStringLiteral("rename");
        return FileOps::rename(from, to);
    }
};

QStringList files(const TestDataRoot& t, const QString& folder = QStringLiteral("/")) {
    return QDir(t.full(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

} // namespace

TEST(SafeReplace, TheNewBytesAreSyncedBeforeTheyTakeTheOldFilesPlace) {
    TestDataRoot t;
    CallLog log;
    FileOps::Scope scope(log);
    t.disk().ReplaceRecordFile("/Services.txt", QByteArray(72, 'n'));
    ASSERT_GE(log.calls.size(), 3);
    EXPECT_EQ(log.calls.mid(0, 3), (QStringList{"write", "fsync", "rename"}));
    EXPECT_EQ(t.readBytes("/Services.txt"), QByteArray(72, 'n'));
}

TEST(SafeReplace, AFailedRenameLeavesTheOldFileAndNoTemporary) {
    TestDataRoot t;
    t.writeBytes("/Services.txt", QByteArray(72, 'o'));
    crash::FaultyFileOps faulty(crash::FaultyFileOps::Kind::Rename, 1);
    FileOps::Scope scope(faulty);
    EXPECT_THROW(t.disk().ReplaceRecordFile("/Services.txt", QByteArray(72, 'n')), StoreError);
    EXPECT_EQ(t.readBytes("/Services.txt"), QByteArray(72, 'o'));
    EXPECT_EQ(files(t), QStringList{"Services.txt"});
}

TEST(SafeReplace, AFailedSyncLeavesTheOldFileAndNoTemporary) {
    TestDataRoot t;
    t.writeBytes("/Services.txt", QByteArray(72, 'o'));
    crash::FaultyFileOps faulty(crash::FaultyFileOps::Kind::Fsync, 1);
    FileOps::Scope scope(faulty);
    EXPECT_THROW(t.disk().ReplaceRecordFile("/Services.txt", QByteArray(72, 'n')), StoreError);
    EXPECT_EQ(t.readBytes("/Services.txt"), QByteArray(72, 'o'));
    EXPECT_EQ(files(t), QStringList{"Services.txt"});
}

TEST(SafeReplace, CustomerDeletionSyncsEachCompactedFileBeforeItReplacesTheOld) {
    TestDataRoot t;
    CustomerBuffers buffers;
    CustomerStore store(t.disk(), buffers);
    store.ResetCompanionBuffers(QDate(2026, 11, 20));
    for (int i = 1; i <= 3; ++i) {
        buffers.customer.SetAccountNumber(QStringLiteral("C%1").arg(i));
        store.SaveCustomerAt(i, QDate(2026, 11, 20));
    }
    CallLog log;
    FileOps::Scope scope(log);
    store.DeleteCustomer(2, QStringLiteral("C2"), 3);
    // Three files, each: its compacted copy written, synced, then renamed over the old one.
    EXPECT_EQ(log.calls.count(QStringLiteral("rename")), 3);
    qsizetype lastRename = -1;
    for (qsizetype i = 0; i < log.calls.size(); ++i) {
        if (log.calls[i] != QStringLiteral("rename")) continue;
        EXPECT_TRUE(log.calls.mid(lastRename + 1, i - lastRename - 1).contains(QStringLiteral("fsync"))) << i;
        lastRename = i;
    }
}

TEST(SafeReplace, ARenameThatFailsDuringCustomerDeletionLeavesEveryFileWhole) {
    for (int n = 1; n <= 3; ++n) {
        TestDataRoot t;
        CustomerBuffers buffers;
        CustomerStore store(t.disk(), buffers);
        store.ResetCompanionBuffers(QDate(2026, 11, 20));
        for (int i = 1; i <= 3; ++i) store.SaveCustomerAt(i, QDate(2026, 11, 20));
        const QByteArray customers = t.readBytes("/CustomerData.txt");
        crash::FaultyFileOps faulty(crash::FaultyFileOps::Kind::Rename, n);
        {
            FileOps::Scope scope(faulty);
            EXPECT_THROW(store.DeleteCustomer(2, QStringLiteral("C2"), 3), StoreError);
        }
        for (const char* f : {"/CustomerData.txt", "/CycleInfo.txt", "/ContractInfo.txt"}) EXPECT_TRUE(t.isFile(f)) << f << " " << n;
        EXPECT_EQ(t.readBytes("/CycleInfo.txt").size() % 69, 0);
        EXPECT_EQ(t.readBytes("/ContractInfo.txt").size() % 386, 0);
        EXPECT_TRUE(t.readBytes("/CustomerData.txt").size() == customers.size() ||
                    t.readBytes("/CustomerData.txt").size() == customers.size() - 328);
    }
}

TEST(LeftoverTemporaries, StartUpRemovesWhatInterruptedSavesLeftAndNothingElse) {
    TestDataRoot t;
    t.writeBytes("/Services.txt", "s");
    t.writeBytes("/Services.txt.uxrUim", "half");
    t.writeBytes("/CUSTOMER.TMP.a1B2c3", "half");
    t.writeBytes("/2026/DaySchedules1/40.txt.Qw3rTy", "half");
    t.writeBytes("/Backup/TaxSettings.txt.zzzzzz", "half");
    t.writeBytes("/Notes.doc.abcdef", "owner's");
    t.writeBytes("/Services.txt.old", "owner's");
    t.writeBytes("/Services.txt.backup1", "owner's");
    t.writeBytes("/AuxFiles/A1/AuxFile0/Data.txt", "aux");
    PrepareDataDirectories(t.disk(), QDate(2026, 11, 20), QStringLiteral("OstrelAppointmentScheduler"));
    EXPECT_EQ(files(t), (QStringList{"Notes.doc.abcdef", "Services.txt", "Services.txt.backup1", "Services.txt.old"}));
    EXPECT_TRUE(files(t, "/2026/DaySchedules1").isEmpty());
    EXPECT_TRUE(files(t, "/Backup").isEmpty());
    EXPECT_TRUE(t.isFile("/AuxFiles/A1/AuxFile0/Data.txt"));
}

TEST(LeftoverTemporaries, OnlyAProgramFileNameWithSixLettersOrDigitsAfterItIsALeftover) {
    EXPECT_TRUE(IsLeftoverTemporaryName("Services.txt.uxrUim"));
    EXPECT_TRUE(IsLeftoverTemporaryName("GenericContract.rtf.000000"));
    EXPECT_FALSE(IsLeftoverTemporaryName("Services.txt"));
    EXPECT_FALSE(IsLeftoverTemporaryName("Services.txt.uxrUi"));
    EXPECT_FALSE(IsLeftoverTemporaryName("Services.txt.uxr-im"));
    EXPECT_FALSE(IsLeftoverTemporaryName("Photo.png.abcdef"));
}
