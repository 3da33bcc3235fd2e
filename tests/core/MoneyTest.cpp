#include "store/Money.h"

#include <gtest/gtest.h>

using namespace ostrel;

TEST(Money, FromDoubleScalesToTenThousandthsAndRoundsToTheNearest) {
    EXPECT_EQ(Money::fromDouble(45.5).tenThousandths(), 455000);
    EXPECT_EQ(Money::fromDouble(-2.5).tenThousandths(), -25000);
    EXPECT_EQ(Money::fromDouble(0.123449).tenThousandths(), 1234);
    EXPECT_EQ(Money::fromDouble(0.123451).tenThousandths(), 1235);
}

TEST(Money, TheStatementFormDropsTrailingZerosAndTheLeadingZero) {
    EXPECT_EQ(Money::fromWhole(120).statementText(), "120");
    EXPECT_EQ(Money::fromTenThousandths(455000).statementText(), "45.5");
    EXPECT_EQ(Money::fromTenThousandths(2500).statementText(), ".25");
    EXPECT_EQ(Money::fromTenThousandths(-31416).statementText(), "-3.1416");
    EXPECT_EQ(Money().statementText(), "0");
}

TEST(Money, TheStatementFormReadsBackExactly) {
    for (qint64 v : {0LL, 1LL, 2500LL, 455000LL, -31416LL, 1234567890123LL}) {
        const Money m = Money::fromTenThousandths(v);
        EXPECT_EQ(Money::fromStatementText(m.statementText()), m) << v;
    }
    EXPECT_FALSE(Money::fromStatementText("12a").has_value());
    EXPECT_FALSE(Money::fromStatementText("1.23456").has_value());
    EXPECT_FALSE(Money::fromStatementText("").has_value());
}

TEST(Money, DisplayFormHasSeparatorsAndParenthesesForNegatives) {
    EXPECT_EQ(FormatMoney(Money::fromTenThousandths(12345000)), "$1,234.50");
    EXPECT_EQ(FormatMoney(Money::fromTenThousandths(-12345000)), "($1,234.50)");
    EXPECT_EQ(Money::fromDisplayText(u"($1,234.50)"), Money::fromTenThousandths(-12345000));
}
