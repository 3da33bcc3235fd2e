#include "FakeClock.h"
#include "platform/SystemClock.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(SystemClock, ReadsTheLocalTimeOfThisMachine) {
    SystemClock clock;
    const QDateTime before = QDateTime::currentDateTime();
    const QDateTime now = clock.now();
    const QDateTime after = QDateTime::currentDateTime();
    EXPECT_LE(before, now);
    EXPECT_LE(now, after);
    EXPECT_EQ(Qt::LocalTime, now.timeSpec());
    EXPECT_TRUE(clock.today() == before.date() || clock.today() == after.date());
}

TEST(FakeClock, StandsWhereTheTestPutsIt) {
    test::FakeClock clock;
    clock.set(QDate(2026, 12, 31), QTime(19, 59));
    EXPECT_EQ(QDate(2026, 12, 31), clock.today());
    EXPECT_EQ(QTime(19, 59), clock.timeOfDay());
    clock.advanceSeconds(60);
    EXPECT_EQ(QTime(20, 0), clock.timeOfDay());
    clock.advanceSeconds(4 * 3600);
    EXPECT_EQ(QDate(2027, 1, 1), clock.today());
    clock.setTime(QTime(8, 15));
    EXPECT_EQ(QDateTime(QDate(2027, 1, 1), QTime(8, 15)), clock.now());
    clock.setDate(QDate(2028, 2, 29));
    EXPECT_EQ(QDateTime(QDate(2028, 2, 29), QTime(8, 15)), clock.now());
}
