#include "controls/Controls.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(ListControl, AddItemGivesTheIndexTheItemTookInAnUnsortedList) {
    ListControl list;
    EXPECT_EQ(list.AddItem("b"), 0);
    EXPECT_EQ(list.AddItem("a"), 1);
    EXPECT_EQ(list.AddItem("c", 0), 0);
    EXPECT_EQ(list.items, QStringList({"c", "b", "a"}));
}

TEST(ListControl, ASortedListPlacesAnItemAfterEveryEntryEqualWithoutCaseAndSaysWhere) {
    ListControl list;
    list.sorted = true;
    EXPECT_EQ(list.AddItem("Pump"), 0);
    EXPECT_EQ(list.AddItem("filter"), 0);
    EXPECT_EQ(list.AddItem("valve"), 2);
    EXPECT_EQ(list.AddItem("PUMP"), 2);
    EXPECT_EQ(list.AddItem("Filter"), 1);
    EXPECT_EQ(list.items, QStringList({"filter", "Filter", "Pump", "PUMP", "valve"}));
    for (int i = 0; i < list.ListCount(); ++i)
        EXPECT_EQ(list.itemData[i], 0);
}
