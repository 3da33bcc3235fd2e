#include "TestDataRoot.h"
#include "shell/DataFolderReport.h"
#include "shell/RecordFormats.h"

#include <cstring>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

TEST(DataFolderReport, CountsWhatTheFolderHolds) {
    TestDataRoot t;
    t.writeBytes("/CustomerData.txt", QByteArray(328 * 3, ' '));
    t.writeBytes("/Services.txt", QByteArray(72 * 2, ' '));
    QByteArray day;
    for (int i = 0; i < 48; ++i) day += "\"\"\r\n";
    t.writeBytes("/2026/DaySchedules1/40.txt", day);
    t.writeBytes("/2026/DaySchedules2/41.txt", day);
    t.writeBytes("/Appointments/1 - 40-1.txt", "\"Scheduled\"\r\n");
    t.writeBytes("/CompletedInvoices/20260001.txt", "x");
    const DataFolderReport r = InspectDataFolder(t.root());
    EXPECT_EQ(r.recordFiles[0].records, 3);
    EXPECT_EQ(r.recordFiles[3].records, 2);
    EXPECT_FALSE(r.recordFiles[1].present);
    EXPECT_EQ(r.pointsOfServiceFolders, 2);
    EXPECT_EQ(r.dayFiles, 2);
    EXPECT_EQ(r.slips, 1);
    EXPECT_EQ(r.invoices, 1);
    EXPECT_TRUE(r.problems.isEmpty()) << r.toText().toStdString();
}

TEST(DataFolderReport, NamesFilesCutShort) {
    TestDataRoot t;
    t.writeBytes("/CustomerData.txt", QByteArray(328 * 2 + 100, ' '));
    t.writeBytes("/2026/DaySchedules1/40.txt", "\"\"\r\n\"\"\r\n");
    const DataFolderReport r = InspectDataFolder(t.root());
    ASSERT_EQ(r.problems.size(), 2);
    EXPECT_TRUE(r.problems[0].startsWith("/CustomerData.txt"));
    EXPECT_TRUE(r.problems[0].contains("100 bytes"));
    EXPECT_TRUE(r.problems[1].contains("/2026/DaySchedules1/40.txt"));
    EXPECT_TRUE(r.toText().contains("2 problem(s)"));
}

TEST(DataFolderReport, TheLegacyShopHasNoProblems) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    const DataRoot root(ostrel::test::legacyFixture());
    const DataFolderReport r = InspectDataFolder(root);
    EXPECT_EQ(r.recordFiles[0].records, 240);
    EXPECT_EQ(r.dayFiles, 18);
    EXPECT_TRUE(r.problems.isEmpty()) << r.toText().toStdString();
}

TEST(DataFolderReport, ALegalShortLastRecordIsANoteNotAProblem) {
    TestDataRoot t;
    // Two records and 200 of 328 bytes: the rounded count includes the short record.
    t.writeBytes("/CustomerData.txt", QByteArray(328 * 2 + 200, ' '));
    const DataFolderReport r = InspectDataFolder(t.root());
    EXPECT_TRUE(r.problems.isEmpty()) << r.toText().toStdString();
    ASSERT_EQ(r.notes.size(), 1);
    EXPECT_TRUE(r.notes[0].startsWith("/CustomerData.txt: its last record is short (200 of 328 bytes)"));
    EXPECT_TRUE(r.toText().contains("No problems found."));
}

TEST(DataFolderReport, HalfARecordThatTheCountDropsIsAProblem) {
    TestDataRoot t;
    // 10.5 records: the count rounds to the even 10 and the half record would be lost on a save.
    t.writeBytes("/OIInventoriedItems.txt", QByteArray(104 * 10 + 52, ' '));
    const DataFolderReport r = InspectDataFolder(t.root());
    ASSERT_EQ(r.problems.size(), 1);
    EXPECT_TRUE(r.problems[0].startsWith("/OIInventoriedItems.txt: it is 1092 bytes long"));
}

TEST(DataFolderReport, FieldsThatCannotBeWhatTheFormatSaysAreProblems) {
    TestDataRoot t;
    QByteArray services(72, ' ');
    services[10] = '\x01';
    t.writeBytes("/Services.txt", services);
    QByteArray contract(386, ' ');
    const double noDate = 1e300;
    std::memcpy(contract.data() + 107, &noDate, sizeof noDate);
    t.writeBytes("/ContractInfo.txt", contract);
    const DataFolderReport r = InspectDataFolder(t.root());
    EXPECT_TRUE(r.problems.contains("/Services.txt: record 1: the description holds characters that are not text."))
        << r.toText().toStdString();
    EXPECT_TRUE(r.problems.contains("/ContractInfo.txt: record 1: the date field holds no date."))
        << r.toText().toStdString();
}

TEST(DataFolderReport, ACutPointsOfServiceFileIsAProblem) {
    TestDataRoot t;
    t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew T");
    const DataFolderReport r = InspectDataFolder(t.root());
    ASSERT_EQ(r.problems.size(), 1);
    EXPECT_EQ(r.problems[0], "/ServiceAreas.txt: it ends inside a name: the file was cut short.");
}

TEST(DataFolderReport, TheCheckerAndTheProgramJudgeAFileAlike) {
    for (const QByteArray& bytes : {QByteArray(72 * 3 + 36, ' '), QByteArray(72 * 3 + 37, ' '), QByteArray(1, 'x'),
                                    QByteArray(72, '\x02'), QByteArray()}) {
        TestDataRoot t;
        t.writeBytes("/Services.txt", bytes);
        const bool checkerFindsAProblem = !InspectDataFolder(t.root()).problems.isEmpty();
        const bool programFindsItSound = CheckRecordFileOnRead(t.disk(), QStringLiteral("/Services.txt"));
        EXPECT_EQ(checkerFindsAProblem, !programFindsItSound) << bytes.size();
        EXPECT_EQ(t.disk().IsDamaged(QStringLiteral("/Services.txt")), checkerFindsAProblem);
    }
}
