#include "FaultyFileOps.h"
#include "TestDataRoot.h"
#include "store/FileOps.h"
#include "store/SafeReplace.h"
#include "store/StoreError.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

// Counts the calls that make a batch durable.
class SyncCount : public FileOps {
public:
    int fsyncs = 0;
    int syncfses = 0;
    int renames = 0;
    int fsync(int fd) override {
        ++fsyncs;
        return FileOps::fsync(fd);
    }
    int syncfs(int fd) override {
        ++syncfses;
        return FileOps::syncfs(fd);
    }
    int rename(const QByteArray& from, const QByteArray& to) override {
        ++renames;
        return FileOps::rename(from, to);
    }
};

struct Batch : ::testing::Test {
    TestDataRoot t;
    Batch() {
        for (int i = 1; i <= 4; ++i) t.writeBytes(name(i), "old " + QByteArray::number(i));
    }
    static QString name(int i) { return QStringLiteral("/Day%1.txt").arg(i); }
    void replace(int i, const QByteArray& bytes) { ReplaceFileWhole(t.full(name(i)), name(i), bytes); }
    QStringList files() const { return QDir(t.full("/")).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
};

} // namespace

TEST_F(Batch, FilesKeepTheirOldBytesUntilTheBatchIsCommittedThenAllHoldTheNew) {
    ReplaceBatch batch;
    for (int i = 1; i <= 4; ++i) replace(i, "new " + QByteArray::number(i));
    for (int i = 1; i <= 4; ++i) EXPECT_EQ(t.readBytes(name(i)), "old " + QByteArray::number(i));
    EXPECT_EQ(files().size(), 8); // each file and its temporary
    batch.commit();
    for (int i = 1; i <= 4; ++i) EXPECT_EQ(t.readBytes(name(i)), "new " + QByteArray::number(i));
    EXPECT_EQ(files(), (QStringList{"Day1.txt", "Day2.txt", "Day3.txt", "Day4.txt"}));
}

TEST_F(Batch, ABatchWaitsForTheDiskTwiceWhateverTheNumberOfFiles) {
    SyncCount count;
    FileOps::Scope scope(count);
    {
        ReplaceBatch batch;
        for (int i = 1; i <= 4; ++i) replace(i, "new");
        batch.commit();
    }
    EXPECT_EQ(count.fsyncs, 0);
    EXPECT_EQ(count.syncfses, 2);
    EXPECT_EQ(count.renames, 4);
    replace(1, "alone");
    EXPECT_EQ(count.fsyncs, 2) << "a replacement outside a batch syncs its file and its folder";
}

TEST_F(Batch, TheEndOfTheBatchsScopeCommitsWhatIsPending) {
    {
        ReplaceBatch batch;
        replace(2, "new");
    }
    EXPECT_EQ(t.readBytes(name(2)), "new");
    EXPECT_EQ(files().size(), 4);
    EXPECT_EQ(ReplaceBatch::current(), nullptr);
}

TEST_F(Batch, AFileSavedTwiceInOneBatchHoldsTheLaterBytesAndLeavesOneTemporary) {
    ReplaceBatch batch;
    replace(3, "first");
    replace(3, "second");
    EXPECT_EQ(files().size(), 5);
    batch.commit();
    EXPECT_EQ(t.readBytes(name(3)), "second");
    EXPECT_EQ(files().size(), 4);
}

TEST_F(Batch, AFailedRenameLeavesTheFilesBeforeItNewTheRestOldAndNoTemporary) {
    crash::FaultyFileOps faulty(crash::FaultyFileOps::Kind::Rename, 3);
    FileOps::Scope scope(faulty);
    ReplaceBatch batch;
    for (int i = 1; i <= 4; ++i) replace(i, "new " + QByteArray::number(i));
    try {
        batch.commit();
        FAIL() << "the failed rename was not reported";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), name(3));
    }
    EXPECT_EQ(t.readBytes(name(1)), "new 1");
    EXPECT_EQ(t.readBytes(name(2)), "new 2");
    EXPECT_EQ(t.readBytes(name(3)), "old 3");
    EXPECT_EQ(t.readBytes(name(4)), "old 4");
    EXPECT_EQ(files().size(), 4);
}

TEST_F(Batch, AFailedSyncLeavesEveryFileOldAndNoTemporary) {
    crash::FaultyFileOps faulty(crash::FaultyFileOps::Kind::Fsync, 1);
    FileOps::Scope scope(faulty);
    ReplaceBatch batch;
    for (int i = 1; i <= 4; ++i) replace(i, "new");
    EXPECT_THROW(batch.commit(), StoreError);
    for (int i = 1; i <= 4; ++i) EXPECT_EQ(t.readBytes(name(i)), "old " + QByteArray::number(i));
    EXPECT_EQ(files().size(), 4);
}

TEST_F(Batch, AFailedWriteInsideABatchIsReportedAtOnceAndTheOtherFilesStillLand) {
    ReplaceBatch batch;
    replace(1, "new 1");
    {
        crash::FaultyFileOps faulty(crash::FaultyFileOps::Kind::Write, 1);
        FileOps::Scope scope(faulty);
        EXPECT_THROW(replace(2, "new 2"), StoreError);
    }
    batch.commit();
    EXPECT_EQ(t.readBytes(name(1)), "new 1");
    EXPECT_EQ(t.readBytes(name(2)), "old 2");
    EXPECT_EQ(files().size(), 4);
}
