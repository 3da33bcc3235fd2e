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
