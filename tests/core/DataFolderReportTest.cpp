#include "TestDataRoot.h"
#include "shell/DataFolderReport.h"

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
