#include "accounts/AuxData.h"
#include "TestDataRoot.h"
#include "accounts/AccountFileNames.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
QStringList sixEmpty() {
    return QStringList(6, QString());
}
} // namespace

TEST(AuxHeadings, AbsentFileMeansSixEmptyHeadings) {
    TestDataRoot t;
    EXPECT_EQ(AuxData::ReadAuxHeadings(t.disk()), sixEmpty());
}

TEST(AuxHeadings, AreSavedAsSixPrintedLinesAndReadBackLineByLine) {
    TestDataRoot t;
    t.writeBytes("/Backup/AuxHeadings.txt", "old");
    const QStringList headings{"Equipment", "Filter, Size", "\"Gate\" Code", "", "Notes", "Pets"};
    AuxData::SaveAuxHeadings(t.disk(), headings);
    EXPECT_EQ(t.readBytes("/AuxHeadings.txt"),
              QByteArray("Equipment\r\nFilter, Size\r\n\"Gate\" Code\r\n\r\nNotes\r\nPets\r\n"));
    EXPECT_FALSE(t.isFile("/Backup/AuxHeadings.txt"));
    EXPECT_EQ(AuxData::ReadAuxHeadings(t.disk()), headings);
}

TEST(AuxHeadings, MissingEntriesAreSavedAsEmptyLines) {
    TestDataRoot t;
    AuxData::SaveAuxHeadings(t.disk(), {"One"});
    EXPECT_EQ(t.readBytes("/AuxHeadings.txt"), QByteArray("One\r\n\r\n\r\n\r\n\r\n\r\n"));
}

TEST(AuxHeadings, AFileOfFewerThanSixLinesStopsWithAMessageNamingIt) {
    TestDataRoot t;
    t.writeBytes("/AuxHeadings.txt", "a\r\nb\r\nc\r\n");
    try {
        AuxData::ReadAuxHeadings(t.disk());
        FAIL() << "a short headings file was accepted";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/AuxHeadings.txt");
    }
    EXPECT_EQ(t.disk().OpenChannelCount(), 0);
}

TEST(AuxData, EachBoxIsPrintedIntoItsOwnDataFile) {
    TestDataRoot t;
    t.makeDir("/AuxFiles/100/AuxFile0");
    const QStringList boxes{"Carrier furnace", "16x25x1", "", "line one\r\nline two", "five", "six"};
    AuxData::SaveAuxData(t.disk(), "100", boxes);
    EXPECT_EQ(t.readBytes("/AuxFiles/100/AuxFile0/Data.txt"), QByteArray("Carrier furnace\r\n"));
    EXPECT_EQ(t.readBytes("/AuxFiles/100/AuxFile1/Data.txt"), QByteArray("16x25x1\r\n"));
    EXPECT_EQ(t.readBytes("/AuxFiles/100/AuxFile2/Data.txt"), QByteArray("\r\n"));
    EXPECT_EQ(t.readBytes("/AuxFiles/100/AuxFile3/Data.txt"), QByteArray("line one\r\nline two\r\n"));
    EXPECT_EQ(t.readBytes("/AuxFiles/100/AuxFile5/Data.txt"), QByteArray("six\r\n"));
}

TEST(AuxData, ANewCustomersFoldersAreMadeWhenItsDataIsFirstSaved) {
    TestDataRoot t;
    AuxData::SaveAuxData(t.disk(), "217-555-0101", {"a", "b", "c", "d", "e", "f"});
    for (int k = 0; k < 6; ++k)
        EXPECT_TRUE(t.isFile(QStringLiteral("/AuxFiles/217-555-0101/AuxFile%1/Data.txt").arg(k))) << k;
}

TEST(AuxData, ReadingSplitsAtCommasAndLineEndsAndDropsTheQuotes) {
    TestDataRoot t;
    t.writeBytes("/AuxFiles/100/AuxFile0/Data.txt", "Carrier 58STA furnace, installed 2014, attic\r\n");
    t.writeBytes("/AuxFiles/100/AuxFile1/Data.txt", "\"quoted, text\"\r\nsecond line\r\n");
    const QStringList boxes = AuxData::LoadAuxData(t.disk(), "100");
    ASSERT_EQ(boxes.size(), 6);
    EXPECT_EQ(boxes[0], "Carrier 58STA furnace\r\ninstalled 2014\r\nattic\r\n");
    EXPECT_EQ(boxes[1], "quoted, text\r\nsecond line\r\n");
    EXPECT_EQ(boxes[2], "");
}

TEST(AuxData, TextWithCommasComesBackOnSeveralLinesAfterASave) {
    TestDataRoot t;
    AuxData::SaveAuxData(t.disk(), "100", {"gate code 1234, dog in yard", "", "", "", "", ""});
    const QStringList boxes = AuxData::LoadAuxData(t.disk(), "100");
    EXPECT_EQ(boxes[0], "gate code 1234\r\ndog in yard\r\n");
    EXPECT_EQ(boxes[1], "\r\n"); // an empty box was printed as one empty line
}

TEST(AuxData, AnAccountWithoutFilesLoadsSixEmptyBoxes) {
    TestDataRoot t;
    EXPECT_EQ(AuxData::LoadAuxData(t.disk(), "nobody"), sixEmpty());
    EXPECT_FALSE(t.isDir("/AuxFiles/nobody"));
}

TEST(AuxData, SavingReplacesEveryOldDataFileOfTheAccount) {
    TestDataRoot t;
    AuxData::SaveAuxData(t.disk(), "100", {"old0", "old1", "old2", "old3", "old4", "old5"});
    AuxData::SaveAuxData(t.disk(), "100", {"new0"});
    EXPECT_EQ(t.readBytes("/AuxFiles/100/AuxFile0/Data.txt"), QByteArray("new0\r\n"));
    EXPECT_EQ(t.readBytes("/AuxFiles/100/AuxFile4/Data.txt"), QByteArray("\r\n"));
}

TEST(AuxData, TheAccountIsTrimmedAndFoundWhateverTheCaseOnDisk) {
    TestDataRoot t;
    t.writeBytes("/auxfiles/abc/auxfile2/data.txt", "found\r\n");
    EXPECT_EQ(AuxData::LoadAuxData(t.disk(), " ABC ")[2], "found\r\n");
}

TEST(AuxData, AnAccountThatWouldLeaveTheDataFolderIsRefusedAndNothingIsMade) {
    TestDataRoot t;
    for (const char* account : {"..", "../..", "a/b", "a\\b", "."}) {
        EXPECT_THROW(AuxData::SaveAuxData(t.disk(), account, {"x"}), StoreError) << account;
        // Such an account simply has no aux files: six empty boxes.
        EXPECT_EQ(AuxData::LoadAuxData(t.disk(), account), QStringList(6, QString())) << account;
    }
    EXPECT_FALSE(t.isDir("/AuxFiles"));
    EXPECT_TRUE(t.root().list("/").isEmpty());
}

TEST(AccountFileNames, NameTheAccountsFilesAndRefuseSeparators) {
    EXPECT_EQ(ActiveAccountFileName(" 217-555-0101 "), "/OIActiveAccounts/217-555-0101.txt");
    EXPECT_EQ(AuxFolderName("100"), "/AuxFiles/100");
    EXPECT_EQ(AuxDataFileName("100", 5), "/AuxFiles/100/AuxFile5/Data.txt");
    try {
        ActiveAccountFileName("x/../../etc");
        FAIL() << "a name outside the data folder was built";
    } catch (const StoreError& e) {
        EXPECT_FALSE(e.problem().isEmpty());
    }
    EXPECT_THROW(AuxFolderName("1/2"), StoreError);
}
