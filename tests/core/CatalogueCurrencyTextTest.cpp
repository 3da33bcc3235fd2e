#include "store/CurrencyText.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ostrel;

TEST(CatalogueCurrencyText, ShowsDollarsWithThousandsCommasAndTwoDecimals) {
    EXPECT_EQ(currencytext::format(0), QStringLiteral("$0.00"));
    EXPECT_EQ(currencytext::format(12345000), QStringLiteral("$1,234.50"));
    EXPECT_EQ(currencytext::format(12345678900000), QStringLiteral("$1,234,567,890.00"));
    EXPECT_EQ(currencytext::format(4500), QStringLiteral("$0.45"));
    EXPECT_EQ(currencytext::format(9999900), QStringLiteral("$999.99"));
    EXPECT_EQ(currencytext::format(10000000), QStringLiteral("$1,000.00"));
    EXPECT_EQ(currencytext::format(1000000000), QStringLiteral("$100,000.00"));
    EXPECT_EQ(currencytext::format(-10000), QStringLiteral("($1.00)"));
}

TEST(CatalogueCurrencyText, ShowsNegativesInParentheses) {
    EXPECT_EQ(currencytext::format(-12345000), QStringLiteral("($1,234.50)"));
    EXPECT_EQ(currencytext::format(std::numeric_limits<qint64>::min()),
              QStringLiteral("($922,337,203,685,477.58)"));
}

TEST(CatalogueCurrencyText, RoundsToCentsHalfAwayFromZeroButAHalfBelowInBinaryDown) {
    EXPECT_EQ(currencytext::format(1051), QStringLiteral("$0.11"));
    EXPECT_EQ(currencytext::format(1049), QStringLiteral("$0.10"));
    EXPECT_EQ(currencytext::format(1250), QStringLiteral("$0.13"));  // 0.125 is exact in binary
    EXPECT_EQ(currencytext::format(-1250), QStringLiteral("($0.13)"));
    EXPECT_EQ(currencytext::format(3350), QStringLiteral("$0.34"));  // 0.335 lies just above
    EXPECT_EQ(currencytext::format(1050), QStringLiteral("$0.10"));  // 0.105 lies just below
    EXPECT_EQ(currencytext::format(480550), QStringLiteral("$48.05"));
    EXPECT_EQ(currencytext::format(-480550), QStringLiteral("($48.05)"));
}

TEST(CatalogueCurrencyText, ReadsTheShownFormAndPlainNumbers) {
    EXPECT_EQ(currencytext::parseCurrency(u"$1,234.50"), 12345000);
    EXPECT_EQ(currencytext::parseCurrency(u"($1,234.50)"), -12345000);
    EXPECT_EQ(currencytext::parseCurrency(u"-$5"), -50000);
    EXPECT_EQ(currencytext::parseCurrency(u" 12.5 "), 125000);
    EXPECT_EQ(currencytext::parseCurrency(u".25"), 2500);
    EXPECT_EQ(currencytext::parseCurrency(u"7"), 70000);
}

TEST(CatalogueCurrencyText, RoundsPastTheKeptDecimalsHalfToEven) {
    EXPECT_EQ(currencytext::parseCurrency(u"0.00005"), 0);
    EXPECT_EQ(currencytext::parseCurrency(u"0.00015"), 2);
    EXPECT_EQ(currencytext::parseCurrency(u"0.000051"), 1);
    EXPECT_EQ(currencytext::parseWhole(u"$12.50"), 12);
    EXPECT_EQ(currencytext::parseWhole(u"$13.50"), 14);
    EXPECT_EQ(currencytext::parseWhole(u"$1,850.00"), 1850);
}

TEST(CatalogueCurrencyText, RefusesTextThatIsNoAmount) {
    EXPECT_FALSE(currencytext::parseCurrency(u""));
    EXPECT_FALSE(currencytext::parseCurrency(u"  "));
    EXPECT_FALSE(currencytext::parseCurrency(u"$"));
    EXPECT_FALSE(currencytext::parseCurrency(u"12abc"));
    EXPECT_FALSE(currencytext::parseCurrency(u"1.2.3"));
    EXPECT_FALSE(currencytext::parseWhole(u"99999999999999999999"));
    EXPECT_FALSE(currencytext::parseCurrency(u"999999999999999999"));
}
