#include "TestDataRoot.h"
#include "scheduling/WorkDays.h"
#include "store/StoreError.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

using namespace ostrel;
using ostrel::test::TestDataRoot;

namespace {
const QDate kFriday(2026, 2, 6);
const QDate kSaturday(2026, 2, 7);
const QDate kSunday(2026, 2, 8);
const QDate kMonday(2026, 2, 9);
} // namespace

TEST(SkipToWorkDay, MondayToFridayMovesASaturdayOrASundayToTheMonday) {
    EXPECT_EQ(SkipToWorkDay(kSaturday, 5), kMonday);
    EXPECT_EQ(SkipToWorkDay(kSunday, 5), kMonday);
    EXPECT_EQ(SkipToWorkDay(kFriday, 5), kFriday);
}

TEST(SkipToWorkDay, MondayToSaturdayKeepsASaturdayAndMovesASunday) {
    EXPECT_EQ(SkipToWorkDay(kSaturday, 61), kSaturday);
    EXPECT_EQ(SkipToWorkDay(kSunday, 61), kMonday);
}

TEST(SkipToWorkDay, SundayToFridayMovesOnlyASaturday) {
    EXPECT_EQ(SkipToWorkDay(kSaturday, 62), kSunday);
    EXPECT_EQ(SkipToWorkDay(kSunday, 62), kSunday);
}

TEST(SkipToWorkDay, EveryDayWeekMovesNothing) {
    for (QDate d = kFriday; d <= kMonday; d = d.addDays(1))
        EXPECT_EQ(SkipToWorkDay(d, 7), d);
}

TEST(SkipToWorkDay, MovesOnlyForwardAcrossAYearEnd) {
    EXPECT_EQ(SkipToWorkDay(QDate(2022, 12, 31), 5), QDate(2023, 1, 2)); // a Saturday
}

TEST(SkipHolidays, WithoutAHolidayFileOnlyTheWorkWeekApplies) {
    TestDataRoot t;
    EXPECT_EQ(SkipHolidays(t.disk(), kSaturday, 5), kMonday);
    EXPECT_EQ(SkipHolidays(t.disk(), kFriday, 5), kFriday);
}

TEST(SkipHolidays, MovesPastConsecutiveHolidaysListedInAnyOrderThenToAWorkDay) {
    TestDataRoot t;
    t.writeBytes("/Holidays.txt", "#2026-12-25#,#2026-12-24#\r\n#2027-01-01#\r\n");
    EXPECT_EQ(SkipHolidays(t.disk(), QDate(2026, 12, 24), 5), QDate(2026, 12, 28));
    EXPECT_EQ(SkipHolidays(t.disk(), QDate(2026, 12, 24), 7), QDate(2026, 12, 26));
    EXPECT_EQ(SkipHolidays(t.disk(), QDate(2027, 1, 1), 5), QDate(2027, 1, 4));
    EXPECT_EQ(SkipHolidays(t.disk(), QDate(2026, 12, 23), 5), QDate(2026, 12, 23));
}

TEST(SkipHolidays, AHolidayReachedByTheWorkWeekSkipIsNotTestedAgain) {
    TestDataRoot t;
    t.writeBytes("/Holidays.txt", "#2026-02-09#\r\n");
    EXPECT_EQ(SkipHolidays(t.disk(), kSaturday, 5), kMonday);
}

TEST(SkipHolidays, PassesOverBlankLines) {
    TestDataRoot t;
    t.writeBytes("/Holidays.txt", "#2026-02-06#\r\n\r\n");
    EXPECT_EQ(SkipHolidays(t.disk(), kFriday, 5), kMonday);
}

TEST(SkipHolidays, AValueThatIsNoDateStopsWithAMessageNamingTheFile) {
    TestDataRoot t;
    t.writeBytes("/Holidays.txt", "\"Christmas\"\r\n");
    try {
        SkipHolidays(t.disk(), kFriday, 5);
        FAIL() << "expected a StoreError";
    } catch (const StoreError& e) {
        EXPECT_EQ(e.file(), "/Holidays.txt");
        EXPECT_TRUE(e.problem().contains("Christmas"));
    }
}

TEST(SkipHolidays, ReadsTheLegacyShopHolidays) {
    OSTREL_REQUIRE_LEGACY_FIXTURE();
    TestDataRoot t;
    QFile legacy(QDir(ostrel::test::legacyFixture()).filePath("Holidays.txt"));
    ASSERT_TRUE(legacy.open(QIODevice::ReadOnly));
    t.writeBytes("/Holidays.txt", legacy.readAll());
    EXPECT_EQ(SkipHolidays(t.disk(), QDate(2026, 12, 24), 5), QDate(2026, 12, 28));
    EXPECT_EQ(SkipHolidays(t.disk(), QDate(2026, 12, 31), 5), QDate(2026, 12, 31));
    EXPECT_EQ(SkipHolidays(t.disk(), QDate(2027, 1, 1), 61), QDate(2027, 1, 2));
}
