#include "util/VbText.h"

#include <gtest/gtest.h>

#include <algorithm>

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

TEST(SortIgnoringCase, GivesTheOrderOfACompareWithoutCase) {
    const auto expected = [](QStringList names) {
        std::sort(names.begin(), names.end(),
                  [](const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
        return names;
    };
    QStringList ascii = {"2 - 319-4.txt", "10 - 3-1.txt", "1 - 5.txt", "1 - 5-1.txt", "b_x.TXT", "B[.txt", "a.txt",
                         "Zeta", "_under", "~tilde", "1 - 319-10.txt", "1 - 319-9.txt", ""};
    QStringList sorted = ascii;
    SortIgnoringCase(sorted);
    EXPECT_EQ(sorted, expected(ascii));
    QStringList accented = {"\u00C9t\u00E9.txt", "e.txt", "Ez.txt", "\u00E9a.txt", "\u00DFtra\u00DFe.txt", "SS.txt"};
    sorted = accented;
    SortIgnoringCase(sorted);
    EXPECT_EQ(sorted, expected(accented));
}
