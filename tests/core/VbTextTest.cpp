#include "util/VbText.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(VbTrim, RemovesBlanksOnlyNotNuls) {
    EXPECT_EQ(vbTrim("  a b  "), "a b");
    const QString nuls(3, QChar(0));
    EXPECT_EQ(vbTrim(nuls), nuls);
    EXPECT_EQ(vbTrim("\tx\t"), "\tx\t");
}

TEST(VbStr, PutsABlankBeforeAPositiveNumber) {
    EXPECT_EQ(vbStr(1), " 1");
    EXPECT_EQ(vbStr(0), " 0");
    EXPECT_EQ(vbStr(-4), "-4");
}

TEST(VbDate, MonthAndDayWithoutLeadingZerosAndAFourDigitYear) {
    EXPECT_EQ(vbDate(QDate(2026, 1, 5)), "1/5/2026");
    EXPECT_EQ(vbDate(QDate(2026, 12, 31)), "12/31/2026");
    EXPECT_EQ(vbDate(QDate(987, 3, 4)), "3/4/0987");
    EXPECT_EQ(vbDate(QDate()), "");
}

TEST(VbDate, GivesTheFormatEnginesTextForEveryDay) {
    for (QDate d(1998, 1, 1); d <= QDate(2032, 12, 31); d = d.addDays(1))
        ASSERT_EQ(vbDate(d), d.toString(QStringLiteral("M/d/yyyy")));
    for (const QDate& d : {QDate(1, 1, 1), QDate(9, 9, 9), QDate(99, 10, 10), QDate(999, 12, 31), QDate(9999, 12, 31),
                           QDate(10000, 1, 1), QDate(-44, 3, 15)})
        EXPECT_EQ(vbDate(d), d.toString(QStringLiteral("M/d/yyyy"))) << d.year();
}
