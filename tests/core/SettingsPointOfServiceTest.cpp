#include "TestDataRoot.h"
#include "setup/PointOfServiceNames.h"
#include "setup/RequiredFiles.h"
#include "store/StoreError.h"

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
const QString kProgram = QStringLiteral("OstrelAppointmentScheduler");

void writeOtherRequiredFiles(TestDataRoot& t) {
    t.writeBytes("/MyBusinessData.txt", "\"N\",\"\",\"\",\"\",\"\",\"\",\"T\",\"\",\"\"\r\n");
    t.writeBytes("/TaxSettings.txt", "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n");
    t.writeBytes("/OstrelAppointmentSchedulerSettings.txt",
                 "1,0,0,0,0,#TRUE#,#FALSE#,0,0,0,\"$0.00\",\"$0.00\",5,1,1,#TRUE#,1,1,1\r\n");
}
} // namespace

TEST(PointOfServiceNamesTable, AbsentFileGivesTheEmptyStateAndNoNames) {
    TestDataRoot t;
    const PointOfServiceNames table = LoadPointOfServiceNames(t.disk());
    EXPECT_EQ(table.ServiceAreasState(), "empty");
    EXPECT_EQ(table[0], "empty");
    EXPECT_FALSE(table.isPopulated());
    EXPECT_EQ(table.UpperBound(), 0);
    EXPECT_TRUE(table.names().isEmpty());
}

TEST(PointOfServiceNamesTable, NamesFollowInFileOrderFromEntryOne) {
    TestDataRoot t;
    t.writeBytes("/ServiceAreas.txt", "\"Crew One\"\r\n\"Crew Two\"\r\n\"Install Team\"\r\n");
    const PointOfServiceNames table = LoadPointOfServiceNames(t.disk());
    EXPECT_EQ(table[0], "populated");
    EXPECT_EQ(table.UpperBound(), 3);
    EXPECT_EQ(table[1], "Crew One");
    EXPECT_EQ(table[2], "Crew Two");
    EXPECT_EQ(table[3], "Install Team");
    EXPECT_EQ(table[4], "");
}

TEST(PointOfServiceNamesTable, ZeroByteFileIsPopulatedWithNoNames) {
    TestDataRoot t;
    t.writeBytes("/ServiceAreas.txt", {});
    const PointOfServiceNames table = LoadPointOfServiceNames(t.disk());
    EXPECT_EQ(table.ServiceAreasState(), "populated");
    EXPECT_EQ(table.UpperBound(), 0);
}

TEST(SaveAssociates, WritesOneStatementPerEntryAndCopiesTheNamesIntoTheTable) {
    TestDataRoot t;
    t.writeBytes("/Backup/ServiceAreas.txt", "\"Old\"\r\n");
    PointOfServiceNames table;
    SaveAssociates(t.disk(), {"Front Desk", "Bay 1"}, table);
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), QByteArray("\"Front Desk\"\r\n\"Bay 1\"\r\n"));
    EXPECT_FALSE(t.isFile("/Backup/ServiceAreas.txt"));
    EXPECT_EQ(table[0], "populated");
    EXPECT_EQ(table.UpperBound(), 2);
    EXPECT_EQ(table[2], "Bay 1");
    EXPECT_EQ(LoadPointOfServiceNames(t.disk()).names(), QStringList({"Front Desk", "Bay 1"}));
}

TEST(SaveAssociates, DeletingANameMovesTheLaterNamesDownOneNumber) {
    TestDataRoot t;
    PointOfServiceNames table;
    SaveAssociates(t.disk(), {"A", "B", "C"}, table);
    SaveAssociates(t.disk(), {"A", "C"}, table);
    const PointOfServiceNames reloaded = LoadPointOfServiceNames(t.disk());
    EXPECT_EQ(reloaded[2], "C"); // C now owns the day schedules of number 2
    EXPECT_EQ(reloaded.UpperBound(), 2);
}

TEST(SaveAssociates, DeletingTheLastNameLeavesAnEmptyFileThatCountsAsPresent) {
    TestDataRoot t;
    writeOtherRequiredFiles(t);
    PointOfServiceNames table;
    SaveAssociates(t.disk(), {"Crew One"}, table);
    ASSERT_TRUE(RequiredFilesPresent(t.disk(), kProgram));

    SaveAssociates(t.disk(), {}, table);
    EXPECT_TRUE(t.isFile("/ServiceAreas.txt"));
    EXPECT_EQ(t.readBytes("/ServiceAreas.txt"), QByteArray());
    const PointOfServiceNames reloaded = LoadPointOfServiceNames(t.disk());
    EXPECT_EQ(reloaded.ServiceAreasState(), "populated");
    EXPECT_EQ(reloaded.UpperBound(), 0);
    EXPECT_EQ(table.UpperBound(), 0);
    EXPECT_TRUE(RequiredFilesPresent(t.disk(), kProgram));
}

TEST(SaveAssociates, NamesAreKeptExactlyWithTheirCaseAndBlanks) {
    TestDataRoot t;
    PointOfServiceNames table;
    SaveAssociates(t.disk(), {"crew  one ", "Crew One"}, table);
    EXPECT_EQ(LoadPointOfServiceNames(t.disk()).names(), QStringList({"crew  one ", "Crew One"}));
}

TEST(RequiredSetupFiles, TrueOnlyWhenAllFourFilesExist) {
    TestDataRoot t;
    writeOtherRequiredFiles(t);
    EXPECT_FALSE(RequiredFilesPresent(t.disk(), kProgram));
    t.writeBytes("/ServiceAreas.txt", "\"Crew\"\r\n");
    EXPECT_TRUE(RequiredFilesPresent(t.disk(), kProgram));
    EXPECT_FALSE(RequiredFilesPresent(t.disk(), "Renamed"));
}

TEST(RequiredSetupFiles, StopsAtTheFirstMissingFileWithoutRestoringTheLaterOnes) {
    TestDataRoot t;
    // Business data missing; the other three have only backup copies.
    t.writeBytes("/Backup/ServiceAreas.txt", "\"Crew\"\r\n");
    t.writeBytes("/Backup/TaxSettings.txt", "\"Sales Tax\",\"Tax\",\"4.0\",\"4.0\",0,0\r\n");
    t.writeBytes("/Backup/OstrelAppointmentSchedulerSettings.txt", "1\r\n");
    EXPECT_FALSE(RequiredFilesPresent(t.disk(), kProgram));
    EXPECT_FALSE(t.isFile("/ServiceAreas.txt"));

    // With business data there, the order goes on: service areas, then tax, then settings.
    t.writeBytes("/MyBusinessData.txt", "\"N\",\"\",\"\",\"\",\"\",\"\",\"T\",\"\",\"\"\r\n");
    EXPECT_TRUE(RequiredFilesPresent(t.disk(), kProgram));
    EXPECT_TRUE(t.isFile("/ServiceAreas.txt"));
    EXPECT_TRUE(t.isFile("/TaxSettings.txt"));
    EXPECT_TRUE(t.isFile("/OstrelAppointmentSchedulerSettings.txt"));
}

TEST(RequiredSetupFiles, SettingsFileIsTestedLast) {
    TestDataRoot t;
    t.writeBytes("/MyBusinessData.txt", "x");
    t.writeBytes("/Backup/OstrelAppointmentSchedulerSettings.txt", "1\r\n");
    // Tax settings missing: the settings file is not reached, so its backup is not restored.
    t.writeBytes("/ServiceAreas.txt", "\"Crew\"\r\n");
    EXPECT_FALSE(RequiredFilesPresent(t.disk(), kProgram));
    EXPECT_FALSE(t.isFile("/OstrelAppointmentSchedulerSettings.txt"));
}
