#include "TestDataRoot.h"
#include "scheduling/DaySchedulePurge.h"
#include "scheduling/DayScheduleStore.h"
#include "store/StoreError.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {

void putDay(TestDataRoot& t, int year, int n, int day) {
    QByteArray bytes;
    for (int i = 0; i < 48; ++i)
        bytes += "\"\"\r\n";
    t.writeBytes(daySchedulePath(year, n, day), bytes);
}

bool hasDay(TestDataRoot& t, int year, int n, int day) {
    return t.isFile(daySchedulePath(year, n, day));
}

void copyFromFixture(TestDataRoot& t, const QString& relative) {
    QFile f(QDir(ostrel::test::legacyFixture()).filePath(relative.mid(1)));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << relative.toStdString();
    t.writeBytes(relative, f.readAll());
}

} // namespace

TEST(PurgeYearLength, EveryFourthYearHas366DaysWithNoCenturyRule) {
    EXPECT_EQ(purgeYearLength(2028), 366);
    EXPECT_EQ(purgeYearLength(2026), 365);
    EXPECT_EQ(purgeYearLength(2100), 366);
    EXPECT_EQ(purgeYearLength(2000), 366);
}

TEST(PurgePastDays, FirstRunSweepsFromDayOneAndKeepsTodayAndLater) {
    TestDataRoot t;
    for (int d : {1, 39, 40, 41, 365}) {
        putDay(t, 2026, 1, d);
        putDay(t, 2026, 2, d);
    }
    PurgePastDays(t.disk(), QDate(2026, 2, 9), 40, 2);
    for (int n : {1, 2}) {
        EXPECT_FALSE(hasDay(t, 2026, n, 1));
        EXPECT_FALSE(hasDay(t, 2026, n, 39));
        EXPECT_TRUE(hasDay(t, 2026, n, 40));
        EXPECT_TRUE(hasDay(t, 2026, n, 41));
        EXPECT_TRUE(hasDay(t, 2026, n, 365));
    }
    EXPECT_EQ(t.readBytes("/LastPurged.txt"), QByteArray("40\r\n"));
}

TEST(PurgePastDays, StartsFromTheDayInLastPurgedAndKeepsEarlierFiles) {
    TestDataRoot t;
    t.writeBytes("/LastPurged.txt", "30\r\n");
    for (int d : {29, 30, 35})
        putDay(t, 2026, 1, d);
    PurgePastDays(t.disk(), QDate(2026, 2, 9), 40, 1);
    EXPECT_TRUE(hasDay(t, 2026, 1, 29));
    EXPECT_FALSE(hasDay(t, 2026, 1, 30));
    EXPECT_FALSE(hasDay(t, 2026, 1, 35));
    EXPECT_EQ(t.readBytes("/LastPurged.txt"), QByteArray("40\r\n"));
}

TEST(PurgePastDays, OnlyTouchesThePointsOfServiceCountedAndThisYear) {
    TestDataRoot t;
    putDay(t, 2026, 1, 10);
    putDay(t, 2026, 3, 10);
    putDay(t, 2025, 1, 10);
    PurgePastDays(t.disk(), QDate(2026, 2, 9), 40, 2);
    EXPECT_FALSE(hasDay(t, 2026, 1, 10));
    EXPECT_TRUE(hasDay(t, 2026, 3, 10));
    EXPECT_TRUE(hasDay(t, 2025, 1, 10));
}

TEST(PurgePastDays, LeavesOtherFilesInTheFolder) {
    TestDataRoot t;
    putDay(t, 2026, 1, 10);
    t.writeBytes("/2026/DaySchedules1/010.txt", "x");
    t.writeBytes("/2026/DaySchedules1/notes.txt", "x");
    t.writeBytes("/2026/DaySchedules1/10.bak", "x");
    PurgePastDays(t.disk(), QDate(2026, 2, 9), 40, 1);
    EXPECT_FALSE(hasDay(t, 2026, 1, 10));
    EXPECT_TRUE(t.isFile("/2026/DaySchedules1/010.txt"));
    EXPECT_TRUE(t.isFile("/2026/DaySchedules1/notes.txt"));
    EXPECT_TRUE(t.isFile("/2026/DaySchedules1/10.bak"));
}

TEST(PurgePastDays, DeletesDayFilesWhateverTheirCase) {
    TestDataRoot t;
    t.writeBytes("/2026/dayschedules1/12.TXT", "x");
    PurgePastDays(t.disk(), QDate(2026, 2, 9), 40, 1);
    EXPECT_FALSE(t.isFile("/2026/dayschedules1/12.TXT"));
}

TEST(PurgePastDays, AtTheFirstStartOfANewYearDeletesNothingAndResetsTheCount) {
    TestDataRoot t;
    t.writeBytes("/LastPurged.txt", "362\r\n");
    putDay(t, 2027, 1, 1);
    putDay(t, 2027, 1, 3);
    PurgePastDays(t.disk(), QDate(2027, 1, 4), 4, 1);
    EXPECT_TRUE(hasDay(t, 2027, 1, 1));
    EXPECT_TRUE(hasDay(t, 2027, 1, 3));
    EXPECT_EQ(t.readBytes("/LastPurged.txt"), QByteArray("4\r\n"));
}

TEST(PurgePastDays, InAYearDivisibleByFourTheSweepReachesDay366) {
    TestDataRoot t;
    putDay(t, 2028, 1, 365);
    putDay(t, 2028, 1, 366);
    // A day number past the year's end makes every day of the year a past day.
    PurgePastDays(t.disk(), QDate(2028, 12, 31), 367, 1);
    EXPECT_FALSE(hasDay(t, 2028, 1, 365));
    EXPECT_FALSE(hasDay(t, 2028, 1, 366));
}

TEST(PurgePastDays, InOtherYearsTheSweepStopsAtDay365) {
    TestDataRoot t;
    putDay(t, 2026, 1, 365);
    putDay(t, 2026, 1, 366);
    PurgePastDays(t.disk(), QDate(2026, 12, 31), 367, 1);
    EXPECT_FALSE(hasDay(t, 2026, 1, 365));
    EXPECT_TRUE(hasDay(t, 2026, 1, 366));
}

TEST(PurgePastDays, TheCenturyYear2100CountsAsLongAndSweepsDay366) {
    TestDataRoot t;
    putDay(t, 2100, 1, 366);
    PurgePastDays(t.disk(), QDate(2100, 12, 31), 367, 1);
    EXPECT_FALSE(hasDay(t, 2100, 1, 366));
}

TEST(PurgePastDays, WritesTheNewDayBeforeDeletingAnything) {
    // When the count cannot be written, no day file has been touched yet.
    TestDataRoot t;
    t.makeDir("/LastPurged.txt");
    putDay(t, 2026, 1, 5);
    EXPECT_THROW(PurgePastDays(t.disk(), QDate(2026, 2, 9), 40, 1), StoreError);
    EXPECT_TRUE(hasDay(t, 2026, 1, 5));
}

TEST(PurgePastDays, MissingFoldersAreNoError) {
    TestDataRoot t;
    PurgePastDays(t.disk(), QDate(2026, 2, 9), 40, 8);
    EXPECT_EQ(t.readBytes("/LastPurged.txt"), QByteArray("40\r\n"));
}

TEST(PurgePastDays, AnEmptyLastPurgedFileStopsWithAMessageNamingIt) {
    TestDataRoot t;
    t.writeBytes("/LastPurged.txt", "");
    putDay(t, 2026, 1, 5);
    try {
        PurgePastDays(t.disk(), QDate(2026, 2, 9), 40, 1);
        FAIL() << "expected a StoreError";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/LastPurged.txt");
    }
    EXPECT_TRUE(hasDay(t, 2026, 1, 5));
}

TEST(PurgePastDays, SweepsTheLegacyShopFromItsLastPurgedDay) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    TestDataRoot t;
    copyFromFixture(t, "/LastPurged.txt");
    for (const QString& rel :
         {QStringLiteral("/2026/DaySchedules1/322.txt"), QStringLiteral("/2026/DaySchedules1/330.txt"),
          QStringLiteral("/2026/DaySchedules2/328.txt"), QStringLiteral("/2026/DaySchedules2/329.txt"),
          QStringLiteral("/2026/DaySchedules2/330.txt"), QStringLiteral("/2026/DaySchedules3/330.txt")})
        copyFromFixture(t, rel);
    // Today is the 26th of November 2026, day 330; the fixture last swept on day 324.
    PurgePastDays(t.disk(), QDate(2026, 11, 26), 330, 3);
    EXPECT_TRUE(hasDay(t, 2026, 1, 322)); // before the last sweep's day
    EXPECT_FALSE(hasDay(t, 2026, 2, 328));
    EXPECT_FALSE(hasDay(t, 2026, 2, 329));
    EXPECT_TRUE(hasDay(t, 2026, 1, 330));
    EXPECT_TRUE(hasDay(t, 2026, 2, 330));
    EXPECT_TRUE(hasDay(t, 2026, 3, 330));
    EXPECT_EQ(t.readBytes("/LastPurged.txt"), QByteArray("330\r\n"));
}

TEST(PurgeLastYear, RemovesLastYearsDayFilesAndFoldersButKeepsTheYearAndTeamFolders) {
    TestDataRoot t;
    for (int n = 1; n <= 3; ++n)
        for (int d : {1, 200, 365})
            putDay(t, 2025, n, d);
    t.makeDir("/2025/Team# 1");
    putDay(t, 2026, 1, 1);
    PurgeLastYear(t.disk(), QDate(2026, 1, 2), 3);
    for (int n = 1; n <= 3; ++n)
        EXPECT_FALSE(t.isDir(dayScheduleDirectory(2025, n))) << n;
    EXPECT_TRUE(t.isDir("/2025"));
    EXPECT_TRUE(t.isDir("/2025/Team# 1"));
    EXPECT_TRUE(hasDay(t, 2026, 1, 1));
}

TEST(PurgeLastYear, AlwaysReachesDay366EvenAfterAShortYear) {
    TestDataRoot t;
    putDay(t, 2025, 1, 366);
    PurgeLastYear(t.disk(), QDate(2026, 1, 5), 1);
    EXPECT_FALSE(hasDay(t, 2025, 1, 366));
    EXPECT_FALSE(t.isDir("/2025/DaySchedules1"));
}

TEST(PurgeLastYear, DoesNothingWhenLastYearHasNoFolder) {
    TestDataRoot t;
    putDay(t, 2024, 1, 10);
    putDay(t, 2026, 1, 10);
    PurgeLastYear(t.disk(), QDate(2026, 3, 1), 1);
    EXPECT_TRUE(hasDay(t, 2024, 1, 10));
    EXPECT_TRUE(hasDay(t, 2026, 1, 10));
}

TEST(PurgeLastYear, ASecondStartInTheNewYearIsQuiet) {
    TestDataRoot t;
    putDay(t, 2025, 1, 300);
    putDay(t, 2025, 2, 300);
    PurgeLastYear(t.disk(), QDate(2026, 1, 2), 2);
    ASSERT_FALSE(t.isDir("/2025/DaySchedules1"));
    EXPECT_NO_THROW(PurgeLastYear(t.disk(), QDate(2026, 1, 3), 2));
    EXPECT_TRUE(t.isDir("/2025"));
}

TEST(PurgeLastYear, OnlyThePointsOfServiceCountedAreRemoved) {
    TestDataRoot t;
    putDay(t, 2025, 1, 10);
    putDay(t, 2025, 4, 10);
    PurgeLastYear(t.disk(), QDate(2026, 1, 2), 2);
    EXPECT_FALSE(t.isDir("/2025/DaySchedules1"));
    EXPECT_TRUE(hasDay(t, 2025, 4, 10));
}

TEST(PurgeLastYear, AFolderHoldingOtherFilesIsReportedAfterTheOthersAreRemoved) {
    TestDataRoot t;
    putDay(t, 2025, 1, 10);
    t.writeBytes("/2025/DaySchedules1/notes.txt", "keep me");
    putDay(t, 2025, 2, 10);
    try {
        PurgeLastYear(t.disk(), QDate(2026, 1, 2), 2);
        FAIL() << "expected a StoreError";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/2025/DaySchedules1");
    }
    EXPECT_FALSE(hasDay(t, 2025, 1, 10));
    EXPECT_TRUE(t.isFile("/2025/DaySchedules1/notes.txt"));
    EXPECT_FALSE(t.isDir("/2025/DaySchedules2"));
}

TEST(StartupPurges, NewYearsDayRunRemovesLastYearThenResetsTheCount) {
    TestDataRoot t;
    t.writeBytes("/LastPurged.txt", "350\r\n");
    putDay(t, 2025, 1, 360);
    putDay(t, 2026, 1, 1);
    const QDate today(2026, 1, 1);
    EnsureDayScheduleDirectories(t.disk(), today, 1);
    PurgeLastYear(t.disk(), today, 1);
    PurgePastDays(t.disk(), today, today.dayOfYear(), 1);
    EXPECT_FALSE(t.isDir("/2025/DaySchedules1"));
    EXPECT_TRUE(hasDay(t, 2026, 1, 1));
    EXPECT_EQ(t.readBytes("/LastPurged.txt"), QByteArray("1\r\n"));
}
