#include "TestDataRoot.h"
#include "store/StoreError.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

TEST(FileExists, IsFalseForADirectoryOfThatName) {
    TestDataRoot t;
    t.makeDir("/AuxFiles");
    EXPECT_FALSE(t.disk().FileExists("/AuxFiles"));
}

TEST(FileExists, AbsentFileWithoutBackupIsFalseAndChangesNothing) {
    TestDataRoot t;
    t.makeDir("/Backup");
    EXPECT_FALSE(t.disk().FileExists("/Missing.txt"));
    EXPECT_FALSE(t.isFile("/Missing.txt"));
    EXPECT_TRUE(t.root().list("/").contains("Backup"));
    EXPECT_EQ(t.root().list("/").size(), 1);
    EXPECT_TRUE(t.root().list("/Backup").isEmpty());
}

TEST(FileExists, RestoresAnAbsentFileFromItsBackupCopy) {
    TestDataRoot t;
    t.writeBytes("/Backup/SlipCounter.txt", "\"324\",22\r\n");
    EXPECT_TRUE(t.disk().FileExists("/SlipCounter.txt"));
    EXPECT_EQ(t.readBytes("/SlipCounter.txt"), QByteArray("\"324\",22\r\n"));
    EXPECT_TRUE(t.isFile("/Backup/SlipCounter.txt"));
}

TEST(FileExists, SeesFilesWhateverTheCaseAndSeparator) {
    TestDataRoot t;
    t.writeBytes("/AuxFiles/123/AuxFile0/Data.txt", "x");
    EXPECT_TRUE(t.disk().FileExists("/Auxfiles/123/auxfile0/DATA.TXT"));
    EXPECT_TRUE(t.disk().FileExists("\\AuxFiles\\123/AuxFile0\\Data.txt"));
}

TEST(FileRecordCount, EmptyFileHoldsNoRecords) {
    TestDataRoot t;
    t.writeBytes("/CustomerData.txt", {});
    EXPECT_EQ(t.disk().FileRecordCount("/CustomerData.txt", 328), 0);
}

TEST(FileRecordCount, CountsALastPartialRecordWhenHalfOfItIsThere) {
    TestDataRoot t;
    t.writeBytes("/A.txt", QByteArray(327, 'x'));
    t.writeBytes("/B.txt", QByteArray(163, 'x'));
    EXPECT_EQ(t.disk().FileRecordCount("/A.txt", 328), 1);
    EXPECT_EQ(t.disk().FileRecordCount("/B.txt", 328), 0);
}

TEST(FileRecordCount, RoundsAnExactHalfToEven) {
    TestDataRoot t;
    t.writeBytes("/Half.txt", QByteArray(164, 'x'));      // 0.5 records
    t.writeBytes("/OneHalf.txt", QByteArray(492, 'x'));   // 1.5 records
    t.writeBytes("/TwoHalf.txt", QByteArray(820, 'x'));   // 2.5 records
    EXPECT_EQ(t.disk().FileRecordCount("/Half.txt", 328), 0);
    EXPECT_EQ(t.disk().FileRecordCount("/OneHalf.txt", 328), 2);
    EXPECT_EQ(t.disk().FileRecordCount("/TwoHalf.txt", 328), 2);
}

TEST(FileRecordCount, AbsentFileIsZero) {
    TestDataRoot t;
    EXPECT_EQ(t.disk().FileRecordCount("/CustomerData.txt", 328), 0);
}

TEST(FileRecordCount, MoreThan32767RecordsIsRefusedWithAMessageNamingTheFile) {
    TestDataRoot t;
    t.writeBytes("/Big.txt", QByteArray(32767 * 2, 'x'));
    EXPECT_EQ(t.disk().FileRecordCount("/Big.txt", 2), 32767);
    t.writeBytes("/Bigger.txt", QByteArray(32768 * 2, 'x'));
    try {
        t.disk().FileRecordCount("/Bigger.txt", 2);
        FAIL() << "no error at 32,768 records";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/Bigger.txt");
        EXPECT_TRUE(e.problem().contains("32,767"));
    }
}

TEST(DeleteDataFile, AbsentFileSucceedsQuietlyButClosesEveryOpenFile) {
    TestDataRoot t;
    t.writeBytes("/In.txt", "\"a\"\r\n");
    DiskRoutines& d = t.disk();
    d.OpenForInput("/In.txt");
    d.OpenRandom("/R.txt", 10);
    ASSERT_EQ(d.OpenChannelCount(), 2);
    EXPECT_NO_THROW(d.DeleteDataFile("/Nothing.txt"));
    EXPECT_EQ(d.OpenChannelCount(), 0);
}

TEST(DeleteDataFile, DeletesAFileButNeverADirectory) {
    TestDataRoot t;
    t.writeBytes("/Gone.txt", "x");
    t.makeDir("/Folder.txt");
    t.disk().DeleteDataFile("/GONE.txt");
    t.disk().DeleteDataFile("/Folder.txt");
    EXPECT_FALSE(t.isFile("/Gone.txt"));
    EXPECT_TRUE(t.isDir("/Folder.txt"));
}

TEST(DeleteFileAndBackup, RemovesBothCopies) {
    TestDataRoot t;
    t.writeBytes("/Phone.txt", "1");
    t.writeBytes("/Backup/Phone.txt", "1");
    t.disk().DeleteFileAndBackup("/Phone.txt");
    EXPECT_FALSE(t.isFile("/Phone.txt"));
    EXPECT_FALSE(t.isFile("/Backup/Phone.txt"));
}

TEST(OpenForAppend, ClosesEveryOpenFileFirst) {
    TestDataRoot t;
    t.writeBytes("/In.txt", "\"a\"\r\n");
    DiskRoutines& d = t.disk();
    d.OpenForInput("/In.txt");
    const int input = d.PrimaryChannel;
    d.OpenRandom("/R.txt", 10);
    d.OpenForAppend("/Journal.txt");
    EXPECT_THROW(d.Input(input), StoreError); // the input file is gone; its channel number was reused
    EXPECT_EQ(d.OpenChannelCount(), 1);
    d.CloseAllFiles();
}

TEST(OpenForInputOutputAndRandom, LeaveOtherOpenFilesOpen) {
    TestDataRoot t;
    t.writeBytes("/In.txt", "\"a\"\r\n");
    DiskRoutines& d = t.disk();
    d.OpenForInput("/In.txt");
    const int first = d.PrimaryChannel;
    d.OpenForOutput("/Out.txt");
    d.OpenRandom("/R.txt", 10);
    d.OpenRandomSecondary("/S.txt", 10);
    EXPECT_TRUE(d.IsOpen(first));
    EXPECT_EQ(d.OpenChannelCount(), 4);
    EXPECT_NE(d.SecondaryChannel, d.PrimaryChannel);
    d.CloseAllFiles();
    EXPECT_EQ(d.OpenChannelCount(), 0);
}

TEST(OpenForAppend, AddsToTheEndOfTheFile) {
    TestDataRoot t;
    t.writeBytes("/Journal.txt", "\"one\"\r\n");
    t.disk().OpenForAppend("/Journal.txt").writeString("two");
    t.disk().CloseAllFiles();
    EXPECT_EQ(t.readBytes("/Journal.txt"), QByteArray("\"one\"\r\n\"two\"\r\n"));
}

TEST(OpenForOutput, ReplacesTheFileOnlyWhenClosed) {
    TestDataRoot t;
    t.writeBytes("/Labor.txt", "old\r\n");
    t.disk().OpenForOutput("/labor.TXT").print("new");
    EXPECT_EQ(t.readBytes("/Labor.txt"), QByteArray("old\r\n"));
    t.disk().CloseAllFiles();
    EXPECT_EQ(t.readBytes("/Labor.txt"), QByteArray("new\r\n"));
    EXPECT_EQ(t.root().list("/"), QStringList{"Labor.txt"}); // no temporary file left, no second spelling
}

TEST(OpenForOutput, FailsWhenTheFolderIsMissing) {
    TestDataRoot t;
    EXPECT_THROW(t.disk().OpenForOutput("/2031/DaySchedules1/5.txt"), StoreError);
}

TEST(OpenForInput, AbsentFileIsAnErrorNamingIt) {
    TestDataRoot t;
    try {
        t.disk().OpenForInput("/Holidays.txt");
        FAIL();
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/Holidays.txt");
    }
}

TEST(ReplaceTextFile, DeletesTheBackupAndWritesTheFileWhole) {
    TestDataRoot t;
    t.writeBytes("/ServiceAreas.txt", "\"Old\"\r\n");
    t.writeBytes("/Backup/ServiceAreas.txt", "\"Old\"\r\n");
    TextWriter w;
    w.writeString("Crew One").writeString("Crew Two");
    t.disk().ReplaceTextFile("/ServiceAreas.txt", w);
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), QByteArray("\"Crew One\"\r\n\"Crew Two\"\r\n"));
    EXPECT_FALSE(t.isFile("/Backup/ServiceAreas.txt"));
}

TEST(ReplaceRecordFile, DropsTheBackupAndReplacesTheFileUnderItsOwnSpelling) {
    TestDataRoot t;
    t.writeBytes("/SERVICES.TXT", QByteArray(72, 'o') + QByteArray(72, 'o'));
    t.writeBytes("/Backup/Services.txt", QByteArray(72, 'o'));
    t.disk().ReplaceRecordFile("/Services.txt", QByteArray(72, 'n'));
    EXPECT_EQ(t.readBytes("/SERVICES.TXT"), QByteArray(72, 'n'));
    EXPECT_FALSE(t.isFile("/Services.txt"));
    EXPECT_FALSE(t.isFile("/Backup/Services.txt"));
}

TEST(ReplaceRecordFile, AFileThatCannotBeWrittenIsAStoreErrorNamingIt) {
    TestDataRoot t;
    t.makeDir("/Services.txt"); // a folder stands where the file should go
    try {
        t.disk().ReplaceRecordFile("/Services.txt", QByteArray(72, 'n'));
        ADD_FAILURE() << "no error";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/Services.txt");
    }
    EXPECT_TRUE(t.isDir("/Services.txt"));
}

TEST(RenameDataFile, OntoAnExistingNameFails) {
    TestDataRoot t;
    t.writeBytes("/CUSTOMER.TMP", "new");
    t.writeBytes("/CustomerData.txt", "old");
    EXPECT_THROW(t.disk().RenameDataFile("/CUSTOMER.TMP", "/CustomerData.txt"), StoreError);
    EXPECT_EQ(t.readBytes("/CustomerData.txt"), QByteArray("old"));
    EXPECT_EQ(t.readBytes("/CUSTOMER.TMP"), QByteArray("new"));
}

TEST(RenameDataFile, MovesTheFile) {
    TestDataRoot t;
    t.writeBytes("/CUSTOMER.TMP", "new");
    t.disk().RenameDataFile("\\CUSTOMER.TMP", "/CustomerData.txt");
    EXPECT_FALSE(t.isFile("/CUSTOMER.TMP"));
    EXPECT_EQ(t.readBytes("/CustomerData.txt"), QByteArray("new"));
}

TEST(MakeDirectoryIfAbsent, MakesOnlyWhatIsMissingAndNeedsTheParent) {
    TestDataRoot t;
    t.makeDir("/AuxFiles");
    t.disk().MakeDirectoryIfAbsent("/Auxfiles");   // already there under another case
    t.disk().MakeDirectoryIfAbsent("/AuxFiles/7");
    EXPECT_TRUE(t.isDir("/AuxFiles/7"));
    EXPECT_FALSE(t.isDir("/Auxfiles"));
    EXPECT_THROW(t.disk().MakeDirectoryIfAbsent("/No/Parent"), StoreError);
}

TEST(CopyRelative, CopiesAndReplacesTheTarget) {
    TestDataRoot t;
    t.makeDir("/Backup");
    t.writeBytes("/AssociateJournal.txt", "journal");
    t.writeBytes("/Backup/AssociateJournal.txt", "older");
    t.disk().CopyRelative("/AssociateJournal.txt", "/Backup/AssociateJournal.txt");
    EXPECT_EQ(t.readBytes("/Backup/AssociateJournal.txt"), QByteArray("journal"));
}

TEST(RandomFile, ReadsAndWritesRecordsAtTheirOffsets) {
    TestDataRoot t;
    RandomFile& f = t.disk().OpenRandom("/R.txt", 4);
    Record r(4);
    r.setText(0, 4, u"ab");
    f.put(1, r);
    r.setText(0, 4, u"cdef");
    f.put(2, r);
    EXPECT_EQ(f.recordCount(), 2);
    EXPECT_EQ(f.get(1).text(0, 4), "ab  ");
    t.disk().CloseAllFiles();
    EXPECT_EQ(t.readBytes("/R.txt"), QByteArray("ab  cdef"));
}

TEST(RandomFile, ShortLastRecordReadsShortWithTheRestZero) {
    TestDataRoot t;
    t.writeBytes("/R.txt", QByteArray("abcdxy"));
    RandomFile& f = t.disk().OpenRandom("/R.txt", 4);
    EXPECT_EQ(f.recordCount(), 2);
    EXPECT_EQ(f.get(2).bytes(), QByteArray("xy\0\0", 4));
    t.disk().CloseAllFiles();
}

TEST(RandomFile, OpeningCreatesAnAbsentFile) {
    TestDataRoot t;
    t.disk().OpenCustomerFile();
    t.disk().CloseAllFiles();
    EXPECT_TRUE(t.isFile("/CustomerData.txt"));
    EXPECT_EQ(t.readBytes("/CustomerData.txt").size(), 0);
}

TEST(ReadTextFileIfPresent, GivesNothingForAnAbsentFileOrAFolderAndChangesNothing) {
    TestDataRoot t;
    t.makeDir("/Holidays.txt.d");
    t.makeDir("/Folder");
    EXPECT_FALSE(t.disk().ReadTextFileIfPresent("/Holidays.txt").has_value());
    EXPECT_FALSE(t.disk().ReadTextFileIfPresent("/Folder").has_value());
    EXPECT_THROW(t.disk().ReadTextFile("/Folder"), StoreError);
    EXPECT_EQ(t.root().list("/").size(), 2);
}

TEST(ReadTextFileIfPresent, ReadsAFileWhateverTheCaseAndRestoresOneFromItsBackupCopy) {
    TestDataRoot t;
    t.writeBytes("/AuxFiles/Notes.txt", "\"first\"\r\n");
    const std::optional<TextReader> notes = t.disk().ReadTextFileIfPresent("/auxfiles\\NOTES.TXT");
    ASSERT_TRUE(notes.has_value());
    EXPECT_EQ(notes->bytes(), QByteArray("\"first\"\r\n"));
    EXPECT_EQ(notes->fileName(), "/auxfiles\\NOTES.TXT");
    t.writeBytes("/Backup/Holidays.txt", "#2026-12-25#\r\n");
    const std::optional<TextReader> holidays = t.disk().ReadTextFileIfPresent("/Holidays.txt");
    ASSERT_TRUE(holidays.has_value());
    EXPECT_EQ(holidays->bytes(), QByteArray("#2026-12-25#\r\n"));
    EXPECT_EQ(t.readBytes("/Holidays.txt"), QByteArray("#2026-12-25#\r\n"));
}

TEST(ReadTextFile, AnEmptyFileReadsAsNoBytes) {
    TestDataRoot t;
    t.writeBytes("/Empty.txt", "");
    EXPECT_TRUE(t.disk().ReadTextFile("/Empty.txt").bytes().isEmpty());
    EXPECT_TRUE(t.disk().ReadTextFileIfPresent("/Empty.txt").has_value());
}

TEST(ReadTextFile, AFileThatCannotBeOpenedIsNamedInTheError) {
    TestDataRoot t;
    t.writeBytes("/Locked.txt", "x");
    QFile::setPermissions(t.full("/Locked.txt"), QFileDevice::Permissions{});
    if (QFile(t.full("/Locked.txt")).open(QIODevice::ReadOnly)) GTEST_SKIP() << "permissions do not bind this user";
    try {
        t.disk().ReadTextFile("/Locked.txt");
        FAIL() << "an unreadable file was read";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/Locked.txt");
        EXPECT_TRUE(e.problem().startsWith("The file cannot be opened")) << e.problem().toStdString();
    }
}

TEST(ReadTextFile, AReaderKeptWhileOtherFilesAreReadKeepsItsOwnBytes) {
    TestDataRoot t;
    t.writeBytes("/One.txt", "\"one\"\r\n");
    t.writeBytes("/Two.txt", "\"second file, longer\"\r\n");
    TextReader one = t.disk().ReadTextFile("/One.txt");
    {
        TextReader two = t.disk().ReadTextFile("/Two.txt");
        EXPECT_EQ(two.readString(), "second file, longer");
    }
    // Read again once the second reader is gone: the buffer is used again, the first reader's not.
    EXPECT_EQ(t.disk().ReadTextFile("/Two.txt").bytes(), QByteArray("\"second file, longer\"\r\n"));
    EXPECT_EQ(t.disk().ReadTextFile("/One.txt").bytes(), QByteArray("\"one\"\r\n"));
    EXPECT_EQ(one.bytes(), QByteArray("\"one\"\r\n"));
    EXPECT_EQ(one.readString(), "one");
}

TEST(ReadTextFile, AFileLargerThanTheSharedBufferAndASmallOneAfterItReadWhole) {
    TestDataRoot t;
    const QByteArray big = QByteArray("\"") + QByteArray(200 * 1024, 'x') + "\"\r\n";
    t.writeBytes("/Big.txt", big);
    t.writeBytes("/Small.txt", "\"s\"\r\n");
    EXPECT_EQ(t.disk().ReadTextFile("/Small.txt").bytes(), QByteArray("\"s\"\r\n"));
    const TextReader whole = t.disk().ReadTextFile("/Big.txt");
    EXPECT_EQ(whole.bytes(), big);
    EXPECT_EQ(t.disk().ReadTextFile("/Small.txt").bytes(), QByteArray("\"s\"\r\n"));
}
