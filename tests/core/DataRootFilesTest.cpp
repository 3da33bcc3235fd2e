#include "TestDataRoot.h"
#include "store/StoreError.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <unistd.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

QStringList namesOf(const QVector<DataRoot::ListedFile>& files) {
    QStringList out;
    for (const auto& f : files) out.append(f.name);
    return out;
}

} // namespace

TEST(DataRootFiles, ListsTheFilesByNameAsTheListingDoesWithoutFolders) {
    TestDataRoot t;
    t.writeBytes("/CompletedInvoices/20260002.txt", "b");
    t.writeBytes("/CompletedInvoices/20260001.txt", "a");
    t.writeBytes("/CompletedInvoices/Zeta.txt", "z");
    t.writeBytes("/CompletedInvoices/alpha.txt", "x");
    t.writeBytes("/CompletedInvoices/.hidden.txt", "h");
    t.makeDir("/CompletedInvoices/Folder.txt");
    const auto files = t.root().files(QStringLiteral("/completedinvoices"));
    QStringList expected = t.root().list(QStringLiteral("/CompletedInvoices"));
    expected.removeAll("Folder.txt");
    EXPECT_EQ(namesOf(files), expected);
    EXPECT_EQ(namesOf(files), (QStringList{".hidden.txt", "20260001.txt", "20260002.txt", "Zeta.txt", "alpha.txt"}));
    EXPECT_EQ(files[1].path, t.full("/CompletedInvoices/20260001.txt"));
}

TEST(DataRootFiles, ALinkCountsByWhatItPointsTo) {
    TestDataRoot t;
    t.writeBytes("/Images/real.txt", "r");
    t.makeDir("/Images/sub");
    ASSERT_EQ(::symlink(QFile::encodeName(t.full("/Images/real.txt")).constData(),
                        QFile::encodeName(t.full("/Images/link.txt")).constData()),
              0);
    ASSERT_EQ(::symlink(QFile::encodeName(t.full("/Images/sub")).constData(),
                        QFile::encodeName(t.full("/Images/dirlink.txt")).constData()),
              0);
    ASSERT_EQ(::symlink("/nowhere/at/all", QFile::encodeName(t.full("/Images/broken.txt")).constData()), 0);
    EXPECT_EQ(namesOf(t.root().files(QStringLiteral("/Images"))), (QStringList{"link.txt", "real.txt"}));
}

TEST(DataRootFiles, AMissingFolderOrAFileListsNothing) {
    TestDataRoot t;
    t.writeBytes("/plain.txt", "p");
    EXPECT_TRUE(t.root().files(QStringLiteral("/NoSuchFolder")).isEmpty());
    EXPECT_TRUE(t.root().files(QStringLiteral("/plain.txt")).isEmpty());
}

TEST(DataRootFiles, AListedFileReadsAsByItsNameAndIsNamedInItsProblems) {
    TestDataRoot t;
    t.writeBytes("/CompletedInvoices/20260001.txt", "20260001\r\n");
    const auto files = t.root().files(QStringLiteral("/CompletedInvoices"));
    ASSERT_EQ(files.size(), 1);
    EXPECT_EQ(t.disk().ReadTextFileAt(files[0].path, "/CompletedInvoices/20260001.txt").readLine(), "20260001");
    QFile::remove(files[0].path);
    try {
        t.disk().ReadTextFileAt(files[0].path, "/CompletedInvoices/20260001.txt");
        FAIL() << "a vanished file was read";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/CompletedInvoices/20260001.txt");
    }
}
