#include "catalogue/CatalogueGrids.h"
#include "catalogue/ServiceTimes.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(CatalogueTimeList, HoldsThirtyThreeQuarterHoursFromNoneToEightHours) {
    const QStringList list = BuildTimeList();
    ASSERT_EQ(list.size(), 33);
    EXPECT_EQ(list.first(), QStringLiteral("0:00"));
    EXPECT_EQ(list[1], QStringLiteral("0:15"));
    EXPECT_EQ(list[2], QStringLiteral("0:30"));
    EXPECT_EQ(list[3], QStringLiteral("0:45"));
    EXPECT_EQ(list[4], QStringLiteral("1:00"));
    EXPECT_EQ(list[31], QStringLiteral("7:45"));
    EXPECT_EQ(list.last(), QStringLiteral("8:00"));
}

TEST(CatalogueTimeList, EntryIsHoursWithoutPaddingThenMinutesByTheQuarter) {
    for (int i = 0; i < kTimeListCount; ++i) {
        const QString expected =
            QString::number(i / 4) + u':' + QString::number((i % 4) * 15).rightJustified(2, u'0');
        EXPECT_EQ(TimeListEntry(i), expected) << i;
    }
}

TEST(CatalogueTimeList, OutsideTheListGivesAnEmptyText) {
    EXPECT_EQ(TimeListEntry(33), QString());
    EXPECT_EQ(TimeListEntry(-1), QString());
}

TEST(CatalogueTimeList, PositionOfATextIsItsSlotCountAndUnknownTextIsZero) {
    EXPECT_EQ(TimeIndexOf(QStringLiteral("1:30")), 6);
    EXPECT_EQ(TimeIndexOf(QStringLiteral("8:00")), 32);
    EXPECT_EQ(TimeIndexOf(QStringLiteral("01:30")), 0);
    EXPECT_EQ(TimeIndexOf(QString()), 0);
}

TEST(CatalogueTimeList, TheCatalogueScreensTimeListIsFilledByTheRule) {
    const CatalogueGrids grids;
    EXPECT_EQ(grids.lstTime.items, BuildTimeList());
    EXPECT_EQ(grids.lstTime.listIndex, -1);
}
